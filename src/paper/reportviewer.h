// SPDX-License-Identifier: MIT
// A report viewer: finished pages under a bar of tools that print, zoom and turn pages.
#pragma once

#include "paper/pageview.h"

#include <QWidget>

class QAction;
class QLabel;
class QToolBar;

class ReportViewer : public QWidget
{
    Q_OBJECT

public:
    explicit ReportViewer(QWidget *parent = nullptr);

    /// Shows a finished report from its first page on.
    void setReport(const ReportPages &report);
    const ReportPages &report() const { return m_pages->report(); }

    /// A tool by its place in the bar, separators counted: 0 copies the page as a picture, 2
    /// prints.
    QAction *tool(int index) const;

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    void addTool(const QString &text, const QString &name, void (ReportViewer::*run)());
    void copyPage();
    void print();
    void zoomOut();
    void zoomIn();
    void fitWidth();
    void firstPage();
    void previousPage();
    void nextPage();
    void lastPage();
    void showPlace();

    QToolBar *m_tools;
    PageView *m_pages = nullptr;
    QLabel *m_place; ///< "3 / 42"
    QLabel *m_percent;
};
