// SPDX-License-Identifier: MIT
#include "paper/report.h"

#include "runtime/values.h"

#include <algorithm>
#include <utility>

Report::Report(ReportLayout layout) : m_layout(std::move(layout)) {}

ReportPages Report::run()
{
    m_pages = {m_layout.title, m_layout.landscape};
    for (const ReportControl &control : std::as_const(m_layout.controls)) {
        if (control.section == ReportSection::Detail && control.kind == ReportControl::Text)
            m_pages.columns += control.box.translated(PageMargin, 0);
    }
    ActiveReport_Initialize();
    const int rowHeight = sectionHeight(ReportSection::Detail);
    const int limit =
        m_pages.paper().height() - PageMargin - sectionHeight(ReportSection::PageFooter);
    beginPage();
    while (!ActiveReport_FetchData()) {
        if (m_bottom + rowHeight > limit) {
            endPage();
            beginPage();
        }
        Detail_Format();
        place(ReportSection::Detail, m_bottom);
        m_bottom += rowHeight;
    }
    endPage();
    ActiveReport_ReportEnd();
    return std::exchange(m_pages, {});
}

void Report::setText(const QString &name, const QString &text)
{
    const auto found = std::ranges::find(m_layout.controls, name, &ReportControl::name);
    Q_ASSERT(found != m_layout.controls.end());
    found->text = text;
}

void Report::drawPageLine(const QLine &line)
{
    QList<QLine> &ruling = m_pages.pages.last().ruling;
    if (!ruling.contains(line))
        ruling += line;
}

/// A section is as high as the lowest edge of its controls, including those without a text.
int Report::sectionHeight(ReportSection section) const
{
    int height = 0;
    for (const ReportControl &control : m_layout.controls) {
        if (control.section == section)
            height = std::max(height, control.box.top() + control.box.height());
    }
    return height;
}

void Report::place(ReportSection section, int top)
{
    for (const ReportControl &control : std::as_const(m_layout.controls)) {
        const bool empty =
            control.kind == ReportControl::Text && trimBlanks(control.text).isEmpty();
        if (control.section != section || empty)
            continue;
        m_pages.pages.last().items +=
            {section,      control.name,  control.box.translated(PageMargin, top),
             control.kind, control.style, control.text};
    }
}

void Report::beginPage()
{
    m_pages.pages += ReportPage();
    place(ReportSection::PageHeader, PageMargin);
    m_bottom = PageMargin + sectionHeight(ReportSection::PageHeader);
}

void Report::endPage()
{
    PageFooter_Format();
    const int height = sectionHeight(ReportSection::PageFooter);
    place(ReportSection::PageFooter, m_pages.paper().height() - PageMargin - height);
}
