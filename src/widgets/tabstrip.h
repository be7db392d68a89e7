// SPDX-License-Identifier: MIT
// Tab bar that reports every setTab(), even of the current tab, and narrows its captions to fit.
#pragma once

#include <QTabBar>

/// Narrows the font of its captions if they do not fit into its width.
class TabStrip : public QTabBar
{
    Q_OBJECT

public:
    explicit TabStrip(QWidget *parent = nullptr);

    /// Returns the current tab, counted from 0.
    int tab() const { return currentIndex(); }

    /// Makes a tab current. Emits clicked() before returning, even if the tab was current already.
    void setTab(int tab);

signals:
    /// Emitted when the user changes the tab, by setTab(), and by the first addTab().
    void clicked();

protected:
    void tabLayoutChange() override;

private:
    int m_padding = -1;     ///< width of a tab without its caption; -1 until it is measured
    bool m_fitting = false; ///< true while setFont() updates the layout again
};
