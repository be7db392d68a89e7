// SPDX-License-Identifier: MIT
// The status bar of the main window.
#pragma once

#include <QStatusBar>
#include <QTimer>

#include <array>

class QLabel;

/// Six panels: name of the page, Caps Lock, Num Lock, date, time, contact.
class StatusPanels : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusPanels(QWidget *parent = nullptr);

    /// Sets the text of the first panel.
    void setPageName(const QString &name);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void showClock();
    void showLocks();

    std::array<QLabel *, 6> m_panels{};
    QTimer m_clock;
};
