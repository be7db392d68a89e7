// SPDX-License-Identifier: MIT
// Shows finished pages below a toolbar that copies, prints, zooms and turns pages.
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

    /// Shows a report from its first page.
    void setReport(const ReportPages &report);
    const ReportPages &report() const { return m_pages->report(); }

    /// Returns an action by its index in the toolbar, separators included: 0 copies the current
    /// page as a picture, 2 prints.
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
