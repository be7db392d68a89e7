// SPDX-License-Identifier: MIT
#include "widgets/spreadmodel.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <utility>
#include <vector>

SpreadModel::SpreadModel(QObject *parent) : QAbstractTableModel(parent)
{
    setup(0, 0);
}

SpreadModel::Rebuild::Rebuild(SpreadModel &grid) : m_grid(grid)
{
    if (m_grid.m_rebuilds++ == 0)
        m_grid.beginResetModel();
}

SpreadModel::Rebuild::~Rebuild()
{
    if (--m_grid.m_rebuilds == 0)
        m_grid.endResetModel();
}

void SpreadModel::setup(int columns, int headers)
{
    const Rebuild rebuild(*this);
    m_rows.clear();
    m_columns = QList<Qt::Alignment>(columns + 1, Qt::AlignLeft | Qt::AlignVCenter);
    m_headers = QList<QList<HeaderCell>>(headers, QList<HeaderCell>(columns + 1));
}

void SpreadModel::setRows(int rows)
{
    if (m_rebuilds > 0) {
        m_rows.resize(rows, Row(m_columns.size()));
    } else if (rows > this->rows()) {
        beginInsertRows({}, this->rows(), rows - 1);
        m_rows.resize(rows, Row(m_columns.size()));
        endInsertRows();
    } else if (rows < this->rows()) {
        beginRemoveRows({}, rows, this->rows() - 1);
        m_rows.resize(rows);
        endRemoveRows();
    }
}

void SpreadModel::insertRow(int row)
{
    beginInsertRows({}, row - 1, row - 1);
    m_rows.insert(row - 1, Row(m_columns.size()));
    endInsertRows();
}

void SpreadModel::removeRow(int row)
{
    beginRemoveRows({}, row - 1, row - 1);
    m_rows.removeAt(row - 1);
    endRemoveRows();
}

bool SpreadModel::hasCell(int row, int column) const
{
    return row >= 1 && row <= rows() && column >= 0 && column <= columns();
}

SpreadModel::Cell &SpreadModel::cell(int row, int column)
{
    Q_ASSERT(hasCell(row, column));
    return m_rows[row - 1][column];
}

void SpreadModel::changed(int row, int column)
{
    if (m_rebuilds > 0)
        return;
    const QModelIndex at = index(row - 1, column);
    emit dataChanged(at, at);
}

void SpreadModel::headerChanged(int column)
{
    if (m_rebuilds == 0)
        emit headerDataChanged(Qt::Horizontal, column, column);
}

QString SpreadModel::text(int row, int column) const
{
    if (row < 0)
        return header(row, column).text;
    return hasCell(row, column) ? m_rows[row - 1][column].text : QString();
}

void SpreadModel::setText(int row, int column, const QString &text)
{
    if (row < 0) {
        m_headers[row - FirstHeaderRow][column].text = text;
        headerChanged(column);
        return;
    }
    cell(row, column).text = text;
    changed(row, column);
}

void SpreadModel::setRow(int row, std::span<const QString> texts)
{
    Q_ASSERT(hasCell(row, int(texts.size()) - 1));
    Row &cells = m_rows[row - 1];
    auto *cell = cells.begin();
    for (const QString &text : texts)
        (cell++)->text = text;
    if (m_rebuilds == 0)
        emit dataChanged(index(row - 1, 0), index(row - 1, int(texts.size()) - 1));
}

QColor SpreadModel::color(int row, int column) const
{
    const QRgb shown = hasCell(row, column) ? m_rows[row - 1][column].color : 0;
    return shown != 0 ? QColor(shown) : QColor();
}

void SpreadModel::setColor(int row, int column, const QColor &color)
{
    cell(row, column).color = color.isValid() ? color.rgb() : 0;
    changed(row, column);
}

void SpreadModel::setAlignment(int column, Qt::Alignment alignment)
{
    m_columns[column] = alignment | Qt::AlignVCenter;
}

const SpreadModel::HeaderCell &SpreadModel::header(int row, int column) const
{
    static const HeaderCell none;
    const int at = row - FirstHeaderRow;
    const bool inside = at >= 0 && at < headerRows() && column >= 0 && column <= columns();
    return inside ? m_headers[at][column] : none;
}

void SpreadModel::setHeader(int row, int column, const HeaderCell &cell)
{
    m_headers[row - FirstHeaderRow][column] = cell;
    headerChanged(column);
}

void SpreadModel::setTitles(int row, std::span<const GridColumn> columns, bool bold)
{
    for (const GridColumn &column : columns) {
        setHeader(row, column.column,
                  {column.title.toString(), column.titleAlignment | Qt::AlignVCenter, bold});
        setAlignment(column.column, column.alignment);
    }
}

void SpreadModel::sortDescending(std::span<const double> values)
{
    Q_ASSERT(values.size() == size_t(rows()));
    if (std::is_sorted(values.begin(), values.end(), std::greater<>()))
        return;
    const Rebuild rebuild(*this);
    std::vector<qsizetype> order(values.size());
    std::iota(order.begin(), order.end(), 0);
    const auto above = [&](qsizetype left, qsizetype right) {
        return values[size_t(left)] > values[size_t(right)];
    };
    std::stable_sort(order.begin(), order.end(), above);
    QList<Row> sorted;
    sorted.reserve(m_rows.size());
    for (const qsizetype row : order)
        sorted += std::move(m_rows[row]);
    m_rows.swap(sorted);
}

int SpreadModel::searchColumn(int column, const QString &text) const
{
    for (int row = 1; row <= rows(); ++row) {
        if (m_rows[row - 1][column].text == text)
            return row;
    }
    return -1;
}

int SpreadModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : rows();
}

int SpreadModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant SpreadModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Cell &shown = m_rows[index.row()][index.column()];
    switch (role) {
    case Qt::DisplayRole:
        return shown.text;
    case Qt::TextAlignmentRole:
        return int(m_columns[index.column()]);
    case Qt::BackgroundRole:
        return shown.color != 0 ? QVariant(QColor(shown.color)) : QVariant();
    case Qt::ForegroundRole: // cell colours are light, and a dark desktop has white text
        return shown.color != 0 ? QVariant(QColor(Qt::black)) : QVariant();
    default:
        return {};
    }
}

QVariant SpreadModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || m_headers.isEmpty())
        return {};
    return m_headers.last()[section].text; // read out by screen readers
}

bool allEmpty(std::span<const SpreadModel> grids)
{
    return std::all_of(grids.begin(), grids.end(),
                       [](const SpreadModel &grid) { return grid.rows() == 0; });
}
