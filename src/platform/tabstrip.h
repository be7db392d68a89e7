// SPDX-License-Identifier: MIT
// Tab strip whose click fires with each setting of the tab, the tab that already shows included.
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
    void clicked();
};
