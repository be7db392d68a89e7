// SPDX-License-Identifier: MIT
// The status bar of the main window: name of the page, lock keys, date, time, contact.
#pragma once

#include <QStatusBar>
#include <QTimer>

#include <array>

class QLabel;

class StatusPanels : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusPanels(QWidget *parent = nullptr);

    /// Text of panel 1.
    void setPageName(const QString &name);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void showClock();
    void showLocks();

    std::array<QLabel *, 6> m_panels{};
    QTimer m_clock;
};
