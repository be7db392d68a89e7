// SPDX-License-Identifier: MIT
// Runs a report and lays it out as finished pages.
#pragma once

#include "paper/reportpage.h"

/// A report: a layout and the routines that fill it. run() calls the routines, which set the texts
/// of the layout's controls.
class Report
{
public:
    explicit Report(ReportLayout layout);
    virtual ~Report() = default;
    Q_DISABLE_COPY_MOVE(Report)

    /// Runs the report and returns its pages. A page has the header, the footer and as many rows as
    /// fit between them. A report without rows has one page.
    ReportPages run();

protected:
    /// Called once before the first row.
    virtual void ActiveReport_Initialize() = 0;

    /// Moves to the next row. Returns true if there is none.
    virtual bool ActiveReport_FetchData() = 0;

    virtual void Detail_Format() = 0;        ///< called before a row is placed
    virtual void PageFooter_Format() {}      ///< called before the footer of a page is placed
    virtual void ActiveReport_ReportEnd() {} ///< called once after the last page

    /// Sets the text of a control, which must exist in the layout.
    void setText(const QString &name, const QString &text);

    /// Adds a line to the ruling of the current page, in coordinates of the paper, unless the page
    /// has the same line already.
    void drawPageLine(const QLine &line);

private:
    int sectionHeight(ReportSection section) const;
    void place(ReportSection section, int top);
    void beginPage();
    void endPage();

    ReportLayout m_layout;
    ReportPages m_pages;
    int m_bottom = 0; ///< y of the next row on the current page
};
