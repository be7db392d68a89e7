// SPDX-License-Identifier: MIT
// A grid as a test reads it.
#pragma once

#include "widgets/spreadmodel.h"

#include <QStringList>

/// All rows, their cells in @p columns parted by "|", " hot" behind a row coloured in @p colored.
inline QStringList rowsOf(const SpreadModel &grid, const QList<int> &columns, int colored = 0)
{
    QStringList rows;
    for (int row = 1; row <= grid.rows(); ++row) {
        QStringList cells;
        for (const int column : columns)
            cells += grid.text(row, column);
        rows += cells.join(u'|');
        if (grid.color(row, colored).isValid())
            rows.last() += QStringLiteral(" hot");
    }
    return rows;
}
