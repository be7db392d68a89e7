// SPDX-License-Identifier: MIT
// The rows of a grid as texts.
#pragma once

#include "widgets/spreadmodel.h"

#include <QStringList>

/// Returns the cells of @p columns of all rows, joined by "|", with " hot" after a row that is
/// coloured in the column @p colored.
inline QStringList rowsOf(const SpreadModel &grid, const QList<int> &columns, int colored = 0)
{
    QStringList rows;
    for (int row = 1; row <= grid.rows(); ++row) {
        QStringList cells;
        for (const int column : columns)
            cells += grid.text(row, column);
        rows += cells.join(u'|') + QLatin1String(grid.color(row, colored).isValid() ? " hot" : "");
    }
    return rows;
}
