// SPDX-License-Identifier: MIT
#include "platform/spreadmodel.h"

#include <algorithm>

SpreadModel::SpreadModel(QObject *parent) : QAbstractTableModel(parent)
{
    setup(0, 0);
}

void SpreadModel::setup(int columns, int headers)
{
    beginResetModel();
    m_rows.clear();
    m_columns = QList<Qt::Alignment>(columns + 1, Qt::AlignLeft | Qt::AlignVCenter);
    m_headers = QList<QList<HeaderCell>>(headers, QList<HeaderCell>(columns + 1));
    endResetModel();
}

void SpreadModel::setRows(int rows)
{
    if (rows > this->rows()) {
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

bool SpreadModel::holds(int row, int column) const
{
    return row >= 1 && row <= rows() && column >= 0 && column <= columns();
}

SpreadModel::Cell &SpreadModel::cell(int row, int column)
{
    Q_ASSERT(holds(row, column));
    return m_rows[row - 1][column];
}

void SpreadModel::changed(int row, int column)
{
    const QModelIndex at = index(row - 1, column);
    emit dataChanged(at, at);
}

QString SpreadModel::text(int row, int column) const
{
    if (row < 0)
        return header(row, column).text;
    return holds(row, column) ? m_rows[row - 1][column].text : QString();
}

void SpreadModel::setText(int row, int column, const QString &text)
{
    if (row < 0) {
        m_headers[row - FirstHeaderRow][column].text = text;
        emit headerDataChanged(Qt::Horizontal, column, column);
        return;
    }
    cell(row, column).text = text;
    changed(row, column);
}

QColor SpreadModel::color(int row, int column) const
{
    return holds(row, column) ? m_rows[row - 1][column].color : QColor();
}

void SpreadModel::setColor(int row, int column, const QColor &color)
{
    cell(row, column).color = color;
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
    emit headerDataChanged(Qt::Horizontal, column, column);
}

int SpreadModel::searchColumn(int column, const QString &text) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(),
                                    [&](const Row &row) { return row[column].text == text; });
    return found == m_rows.end() ? -1 : int(found - m_rows.begin()) + 1;
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
        return shown.color.isValid() ? QVariant(shown.color) : QVariant();
    case Qt::ForegroundRole: // a fixed background needs a text that stays readable on it
        return shown.color.isValid() ? QVariant(QColor(Qt::black)) : QVariant();
    default:
        return {};
    }
}

QVariant SpreadModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || m_headers.isEmpty())
        return {};
    return m_headers.last()[section].text; // what a screen reader says of the column
}
