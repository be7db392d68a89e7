// SPDX-License-Identifier: MIT
#include "paper/sheetofpages.h"

#include "runtime/runtimeerror.h"
#include "runtime/values.h"

#include <algorithm>

namespace {

/// The left edges of a heading and its field differ by a few twips.
constexpr int Slack = 50;

class SheetBuilder
{
public:
    explicit SheetBuilder(const ReportPages &report) : m_report(report)
    {
        for (qsizetype at = 0; at < report.columns.size(); ++at) {
            const bool last = at + 1 == report.columns.size();
            m_sheet.columnWidths += last
                                        ? report.columns[at].width()
                                        : report.columns[at + 1].left() - report.columns[at].left();
        }
        m_sheet.name = report.title;
        m_sheet.landscape = report.landscape;
        m_sheet.margin = PageMargin;
    }

    Sheet build()
    {
        addSection(m_report.pages.first(), ReportSection::PageHeader);
        m_sheet.headerRows = m_row;
        for (const ReportPage &page : m_report.pages)
            addSection(page, ReportSection::Detail);
        addSection(m_report.pages.last(), ReportSection::PageFooter);
        return m_sheet;
    }

private:
    /// Adds the texts of a section. Texts with the same top form a row of the sheet.
    void addSection(const ReportPage &page, ReportSection section)
    {
        QList<const PageItem *> items;
        for (const PageItem &item : page.items) {
            if (item.section == section && item.kind == ReportControl::Text)
                items += &item;
        }
        std::ranges::stable_sort(items, {}, [this](const PageItem *item) {
            return std::pair(item->box.top(), columnOf(*item)); // cells are stored left to right
        });
        const PageItem *before = nullptr;
        for (const PageItem *item : std::as_const(items)) {
            m_row += before && before->box.top() != item->box.top() ? 1 : 0;
            addText(*item);
            before = item;
        }
        m_row += before ? 1 : 0;
    }

    void addText(const PageItem &item)
    {
        const QString text = trimBlanks(item.text);
        SheetCell cell{m_row, columnOf(item), SheetCell::Text, text};
        cell.alignment = item.style.alignment;
        cell.bold = item.style.bold;
        if (item.style.amount
            && resumeNext([&] { cell.amount = CDbl(text); })) // otherwise it stays a text
            cell.kind = SheetCell::Amount;
        m_sheet.cells += cell;
    }

    /// Returns the column of a text: the first one that starts at or after its left edge. For a
    /// right-aligned text it is the last one that ends at or before its right edge, since a long
    /// text extends over the cells to its left.
    int columnOf(const PageItem &item) const
    {
        const auto &columns = m_report.columns;
        if (item.style.alignment & Qt::AlignRight) {
            const int right = item.box.left() + item.box.width() + Slack;
            const auto after = std::ranges::find_if(columns, [&](const QRect &column) {
                return column.left() + column.width() > right;
            });
            return std::max(0, int(after - columns.begin()) - 1);
        }
        const auto first = std::ranges::find_if(
            columns, [&](const QRect &column) { return column.left() + Slack >= item.box.left(); });
        return std::min(int(first - columns.begin()), int(columns.size()) - 1);
    }

    const ReportPages &m_report;
    Sheet m_sheet;
    int m_row = 0;
};

} // namespace

Sheet sheetOf(const ReportPages &report)
{
    return SheetBuilder(report).build();
}
