// SPDX-License-Identifier: MIT
// The base class of the three reports, which print one row for each row of their grids, and the
// description of their columns.
#pragma once

#include "paper/report.h"
#include "widgets/spreadmodel.h"

/// Horizontal position of a control from the left margin, and its width, in twips.
struct Extent
{
    int left;
    int width;
};

/// A column of a report: its heading in the page header, the field below it, which copies a column
/// of a grid, and the vertical lines beside it, which span the page.
struct ReportColumn
{
    /// Words are centred. Money is right-aligned, never clipped, and has a leading space.
    enum Kind { Word, Money };

    QStringView title;
    Kind kind = Word;
    int label = 0;  ///< number in the name of the heading's control
    int grid = 0;   ///< index of the grid in the report
    int source = 0; ///< column of the grid
    Extent field{};
    int rulingBefore = 0; ///< x of the line before the column, in twips from the edge of the paper
    int rulingAfter = 0;  ///< x of the line after it, if no column follows
    Extent heading = field;
};

/// The look of all columns of a report. Positions and heights are in twips.
struct ColumnLook
{
    int headingTop = 0;
    int headingHeight = 0;
    int headingPoints = 0;
    bool boldHeadings = true;
    int fieldHeight = 0;
    int fieldPoints = 0;
};

/// Returns the heading and the field of a column. @p at is its index in the report.
QList<ReportControl> columnControls(const ReportColumn &column, qsizetype at,
                                    const ColumnLook &look);

/// A report of one or more grids side by side. After the last row of a shorter grid its fields are
/// empty. The grids must outlive run() and must not change meanwhile.
class GridReport : public Report
{
public:
    /// @p rulingFrom is the y of the lower end of the vertical lines, in twips from the top edge of
    /// the paper.
    GridReport(ReportLayout layout, QList<ReportColumn> columns, int rulingFrom,
               QList<const SpreadModel *> grids);

protected:
    const SpreadModel &grid(qsizetype at) const { return *m_grids[at]; }

    /// Starts before the first row and sets the number of rows to that of the longest grid. Throws
    /// "Overflow" above 32,767 rows. With exactly 32,767 rows ActiveReport_FetchData() throws it
    /// after the last one.
    void takeRowTotal();

    bool ActiveReport_FetchData() override;
    void Detail_Format() override;
    void ActiveReport_ReportEnd() override { m_grids.clear(); }

private:
    QList<ReportColumn> m_columns;
    int m_rulingFrom;
    QList<const SpreadModel *> m_grids;
    qint16 m_row = 0;
    qint16 m_rowTotal = 0;
};

/// Returns today's long date for the title of a report, as "( date )". It is the date of printing,
/// not that of the draw.
QString dateInBrackets();
