// SPDX-License-Identifier: MIT
// Content of a grid: texts, alignments and colours. The texts are data: a ticket or a board is read
// back from the texts of its cells.
#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QList>
#include <QString>
#include <QVarLengthArray>

#include <span>

/// Number of the first header row; the second is -999, the third -998.
inline constexpr int FirstHeaderRow = -1000;

/// Title and alignments of a column.
struct GridColumn
{
    int column = 0;
    QStringView title;
    Qt::Alignment alignment = Qt::AlignHCenter;
    Qt::Alignment titleAlignment = alignment;
};

/// A grid of text cells. Rows and columns count from 1; column 0 is the hidden row-header column.
/// Header rows are numbered from FirstHeaderRow. In the functions of QAbstractTableModel, rows
/// count from 0 and header rows are not included.
class SpreadModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// One cell of a header row, with the number of columns it spans.
    struct HeaderCell
    {
        QString text = {};
        Qt::Alignment alignment = Qt::AlignCenter;
        bool bold = false;
        int span = 1;
    };

    class Rebuild;

    explicit SpreadModel(QObject *parent = nullptr);

    /// Clears the grid and gives it @p columns columns besides column 0, and @p headers header rows
    /// of empty cells.
    void setup(int columns, int headers);

    int rows() const { return int(m_rows.size()); }
    int columns() const { return int(m_columns.size()) - 1; } ///< without column 0
    int headerRows() const { return int(m_headers.size()); }

    /// Sets the number of rows by adding blank rows or removing rows at the end.
    void setRows(int rows);

    void insertRow(int row); ///< inserts a blank row before @p row
    void removeRow(int row);

    /// Returns the text of a cell or header cell, or "" outside the grid.
    QString text(int row, int column) const;
    void setText(int row, int column, const QString &text);

    /// Sets the texts of a row, starting with column 0.
    void setRow(int row, std::span<const QString> texts);

    /// Returns the background of a cell; invalid if it is the default one.
    QColor color(int row, int column) const;

    /// Sets the background of a cell. It must be light, since the text becomes black.
    void setColor(int row, int column, const QColor &color);

    /// Sets the horizontal alignment of all cells of a column, except header cells.
    void setAlignment(int column, Qt::Alignment alignment);

    /// Returns a header cell, or an empty one outside the header rows.
    const HeaderCell &header(int row, int column) const;
    void setHeader(int row, int column, const HeaderCell &cell);

    /// Sets the titles of @p columns in a header row, and the alignment of the columns.
    void setTitles(int row, std::span<const GridColumn> columns, bool bold = false);

    /// Sorts the rows by @p values, one for each row, the highest first. Rows of equal value keep
    /// their order.
    void sortDescending(std::span<const double> values);

    /// Returns the first row whose text in @p column equals @p text exactly, or -1.
    int searchColumn(int column, const QString &text) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Cell
    {
        QString text;
        QRgb color = 0; ///< 0 is the default background; QColor would be four times as large
    };
    using Row =
        QVarLengthArray<Cell, 5>; ///< the columns of a board, without an allocation for each row

    bool hasCell(int row, int column) const;
    Cell &cell(int row, int column);
    void changed(int row, int column);
    void headerChanged(int column);

    QList<Qt::Alignment> m_columns;
    QList<QList<HeaderCell>> m_headers;
    QList<Row> m_rows;
    int m_rebuilds = 0; ///< number of Rebuild objects
};

/// Returns true if no grid has a row.
bool allEmpty(std::span<const SpreadModel> grids);

/// Resets a model during its lifetime: views are notified once, when it is destroyed, instead of
/// for each cell. This also holds if an exception is thrown. Rebuilds of one model may be nested.
class SpreadModel::Rebuild
{
public:
    explicit Rebuild(SpreadModel &grid);
    ~Rebuild();
    Q_DISABLE_COPY_MOVE(Rebuild)

private:
    SpreadModel &m_grid;
};
