// SPDX-License-Identifier: MIT
// Tab strip whose click fires with each setting of the tab, the tab that already shows included.
// Its captions are narrowed where there is no room for them all.
#pragma once

#include <QTabBar>

class TabStrip : public QTabBar
{
    Q_OBJECT

public:
    explicit TabStrip(QWidget *parent = nullptr);

    int tab() const { return currentIndex(); }

    /// Shows a tab and emits clicked() inside the call.
    void setTab(int tab);

signals:
    void clicked(); ///< a tab was set, by hand or by the program

protected:
    void tabLayoutChange() override;

private:
    int m_padding = -1;     ///< around each caption, once it is known
    bool m_fitting = false; ///< the type is being narrowed, which lays the tabs out again
};
