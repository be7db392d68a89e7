// SPDX-License-Identifier: MIT
// The main window: starts the program, shows its pages and ends it.
#pragma once

#include "shell/customerstrip.h"
#include "widgets/progressbar.h"

#include <QMainWindow>
#include <QPointer>
#include <QSessionManager>

#include <array>
#include <functional>
#include <memory>

class MDIForm1;
class PushButton;

namespace Ui {
class MDIForm1;
}

/// Parts of the main window that pages use.
struct Frame
{
    ProgressBar &progress;
    CustomerStrip &strip;
};

/// Makes a page as a child of @p parent.
using PageMaker = std::function<QWidget *(const Frame &frame, QWidget *parent)>;

/// Number of pages, one for each navigation button.
inline constexpr int PageCount = 5;

/// Functions that create the pages, in the order of the buttons, and show the settings dialog. The
/// main window itself does not depend on any page.
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

    /// Starts the program: refuses a second copy, opens the Ledger, reads the rates, loads the
    /// style sheet and centres the window. Returns false for a second copy, which must end at once.
    bool MDIForm_Load();

    /// Opens page 0 to 4. The current page is deleted with its unsaved input.
    void openPage(int page);

    /// Returns the current page.
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
