// SPDX-License-Identifier: MIT
// Grids as the pages of the program show them when a report is printed.
#pragma once

#include "widgets/spreadmodel.h"

#include <memory>
#include <vector>

/// A grid of @p rows rows. A cell says its row and column, "7.2"; column 1 has a bet's number,
/// "007", and the columns @p amounts have amounts, "7,400" in column 4. The total in the second
/// header row is "1,234".
inline std::unique_ptr<SpreadModel> filledGrid(int rows, int columns, const QList<int> &amounts)
{
    using namespace Qt::StringLiterals;
    auto grid = std::make_unique<SpreadModel>();
    grid->setup(columns, 3);
    grid->setText(FirstHeaderRow + 1, 2, u"1,234"_s);
    grid->setRows(rows);
    for (int row = 1; row <= rows; ++row) {
        for (int column = 1; column <= columns; ++column) {
            QString text = u"%1.%2"_s.arg(row).arg(column);
            if (amounts.contains(column))
                text = QString::number(row) + u',' + QString::number(column) + u"00"_s;
            else if (column == 1)
                text = u"%1"_s.arg(row, 3, 10, QChar(u'0'));
            grid->setText(row, column, text);
        }
    }
    return grid;
}

/// The eight boards, of so many rows each.
class Boards
{
public:
    explicit Boards(const QList<int> &rows)
    {
        for (const int count : rows)
            m_grids.push_back(filledGrid(count, 4, {2}));
    }

    QList<const SpreadModel *> all() const
    {
        QList<const SpreadModel *> grids;
        for (const auto &grid : m_grids)
            grids += grid.get();
        return grids;
    }

private:
    std::vector<std::unique_ptr<SpreadModel>> m_grids;
};
