// SPDX-License-Identifier: MIT
// The main window: starts the program, holds the pages, ends the program.
#pragma once

#include "shell/customerstrip.h"
#include "widgets/progressbar.h"

#include <QMainWindow>
#include <QPointer>

#include <array>
#include <functional>
#include <memory>

class MDIForm1;
class PushButton;
class QSessionManager;

namespace Ui {
class MDIForm1;
}

/// What the main window lends to its pages.
struct Frame
{
    ProgressBar &progress;
    CustomerStrip &strip;
};

/// Makes a page as a child of @p parent.
using PageMaker = std::function<QWidget *(const Frame &frame, QWidget *parent)>;

/// The five pages behind the navigation buttons, in their order.
inline constexpr int PageCount = 5;

/// Makers of the pages and of the settings dialog. The main window knows no page itself.
struct Pages
{
    std::array<PageMaker, PageCount> makers;
    std::function<void(const Frame &frame, MDIForm1 *window)> showSettings;
};

class MDIForm1 : public QMainWindow
{
    Q_OBJECT

public:
    explicit MDIForm1(Pages pages);
    ~MDIForm1() override;

    /// The start: refuses a second copy, opens the Ledger, reads the rates, loads the look and
    /// centres the window. False for a second copy, which is to end without a question.
    bool MDIForm_Load();

    /// Opens a page, 0 to 4, in place of the one that is open; what that one held is gone.
    void openPage(int page);

    QWidget *page() const { return m_page; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void connectNavigation();
    void endSession(QSessionManager &session);
    bool MDIForm_QueryUnload();
    void UnloadAllForms();

    std::unique_ptr<Ui::MDIForm1> m_ui;
    Pages m_pages;
    std::array<PushButton *, PageCount> m_pageButtons{};
    std::unique_ptr<CustomerStrip> m_strip;
    QPointer<QWidget> m_page;
    bool m_ended = false;
};
