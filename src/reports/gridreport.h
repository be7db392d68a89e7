// SPDX-License-Identifier: MIT
// What the three reports share: one row of paper for each row of the grids, and the lines of the
// paper.
#pragma once

#include "paper/report.h"
#include "widgets/spreadmodel.h"

/// Copies one grid column into one field of a row.
struct FieldSource
{
    QString field;
    int grid; ///< which of the report's grids, from 0
    int column;
    bool blankAhead = false; ///< amounts get one leading blank
};

/// A report's rows: which cells they copy, and the upright lines drawn over the whole page.
struct RowPlan
{
    QList<FieldSource> fields;
    QList<int> rulingAt; ///< x of each line, in coordinates of the paper
    int rulingFrom = 0;  ///< y where the lines begin, their lower end
    int rulingTo = 1000;
};

/// A report over grids. A grid shorter than the longest leaves its fields empty from there on.
/// The grids must outlive run() and not change meanwhile.
class GridReport : public Report
{
public:
    GridReport(ReportLayout layout, RowPlan plan, QList<const SpreadModel *> grids);

protected:
    const SpreadModel &grid(qsizetype at) const { return *m_grids[at]; }

    /// Begins at the first row and takes the row total: that of the longest grid. Raises
    /// "Overflow" above 32,767 rows. A grid of exactly that many raises it behind its last row.
    void takeRowTotal();

    bool ActiveReport_FetchData() override;
    void Detail_Format() override;
    void ActiveReport_ReportEnd() override { m_grids.clear(); }

private:
    RowPlan m_plan;
    QList<const SpreadModel *> m_grids;
    qint16 m_row = 0;
    qint16 m_rowTotal = 0;
};

/// Today's long date as the titles of the reports show it: "( date )". It is the day of printing,
/// not that of the draw.
QString dateInBrackets();
