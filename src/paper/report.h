// SPDX-License-Identifier: MIT
// The page engine: runs a report and lays it out into finished pages, once.
#pragma once

#include "paper/reportpage.h"

/// A report: a layout, and the routines that fill it. The engine calls them; they set the texts
/// of the layout's controls.
class Report
{
public:
    explicit Report(ReportLayout layout);
    virtual ~Report() = default;
    Q_DISABLE_COPY_MOVE(Report)

    /// Runs the report from its initialize routine to its end. A page carries the header and the
    /// footer and as many rows as fit between them; without rows there is one page.
    ReportPages run();

protected:
    virtual void ActiveReport_Initialize() = 0;

    /// Moves to the next row; true when there is none.
    virtual bool ActiveReport_FetchData() = 0;

    virtual void Detail_Format() = 0;
    virtual void PageFooter_Format() {}
    virtual void ActiveReport_ReportEnd() {}

    /// Sets the text of a control. Its name must be in the layout.
    void setText(const QString &name, const QString &text);

    /// Draws a line on the page at hand, in coordinates of the paper. The same line again on the
    /// same page leaves the page as it is.
    void drawPageLine(const QLine &line);

private:
    int sectionHeight(ReportSection section) const;
    void place(ReportSection section, int top);
    void beginPage();
    void endPage();

    ReportLayout m_layout;
    ReportPages m_pages;
    int m_bottom = 0; ///< where the rows of the page at hand have come to, on the paper
};
