// SPDX-License-Identifier: MIT
// What the three reports share: one row of paper for each row of the grids, and the lines of the
// paper.
#pragma once

#include "paper/report.h"
#include "widgets/spreadmodel.h"

/// Where a control stands across the page, in twips from the margin.
struct Extent
{
    int left;
    int width;
};

/// One column of a report: its heading in the page header, the field beneath it that copies a column
/// of a grid, and the upright lines beside it, which run down the whole page.
struct ReportColumn
{
    /// Money is right-aligned, never clipped, and has one leading blank.
    enum Kind { Word, Money };

    QStringView title;
    Kind kind;
    int label;  ///< number of the heading's control
    int grid;   ///< which of the report's grids, from 0
    int source; ///< column of the grid
    Extent field;
    int rulingBefore;     ///< x of the line before the column, on the paper
    int rulingBehind = 0; ///< of the line behind it, where no column follows
    Extent heading = field;
};

/// How the columns of a report look, heights in twips.
struct ColumnLook
{
    int headingTop = 0;
    int headingHeight = 0;
    int headingPoints = 0;
    bool boldHeadings = true;
    int fieldHeight = 0;
    int fieldPoints = 0;
};

/// Heading and field of the column that is the @p at-th of its report, from 0.
QList<ReportControl> columnControls(const ReportColumn &column, qsizetype at,
                                    const ColumnLook &look);

/// A report over grids. A grid shorter than the longest leaves its fields empty from there on.
/// The grids must outlive run() and not change meanwhile.
class GridReport : public Report
{
public:
    /// @p rulingFrom is the y of the lower end of the upright lines, on the paper.
    GridReport(ReportLayout layout, QList<ReportColumn> columns, int rulingFrom,
               QList<const SpreadModel *> grids);

protected:
    const SpreadModel &grid(qsizetype at) const { return *m_grids[at]; }

    /// Begins at the first row and takes the row total: that of the longest grid. Raises
    /// "Overflow" above 32,767 rows. A grid of exactly that many raises it behind its last row.
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

/// Today's long date as the titles of the reports show it: "( date )". It is the day of printing,
/// not that of the draw.
QString dateInBrackets();
