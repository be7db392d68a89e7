// SPDX-License-Identifier: MIT
// The grid's content: text, alignment and colour of each cell. The text is the data; a ticket or
// a board is what its cells say.
#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QList>
#include <QString>

#include <functional>
#include <span>

/// Header rows count up from here: -1000 is the first, -999 the second, -998 the third.
inline constexpr int FirstHeaderRow = -1000;

/// A column of a list: its title, and on which side cells and title stand.
struct GridColumn
{
    int column;
    QStringView title;
    Qt::Alignment alignment = Qt::AlignHCenter;
    Qt::Alignment titleAlignment = alignment;
};

/// A grid of text cells. Rows and columns count from 1; column 0 is the hidden row-header
/// column. Above the rows stand the header rows, numbered from FirstHeaderRow on.
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

    /// Empties the grid and gives it @p columns columns beside column 0 and @p headers header
    /// rows of empty cells.
    void setup(int columns, int headers);

    int rows() const { return int(m_rows.size()); }
    int columns() const { return int(m_columns.size()) - 1; }
    int headerRows() const { return int(m_headers.size()); }

    /// Sets the number of rows: new ones are blank and stand last, surplus ones fall off the end.
    void setRows(int rows);

    void insertRow(int row); ///< a blank row at @p row; those from there on move down
    void removeRow(int row);

    /// Text of a cell, header cells included; "" outside the grid.
    QString text(int row, int column) const;
    void setText(int row, int column, const QString &text);

    /// Writes the texts of a whole row, from column 0 on.
    void setRow(int row, std::span<const QString> texts);

    /// Background of a cell; invalid where the grid's own colour shows.
    QColor color(int row, int column) const;
    void setColor(int row, int column, const QColor &color);

    /// Alignment of all rows of a column.
    void setAlignment(int column, Qt::Alignment alignment);

    const HeaderCell &header(int row, int column) const;
    void setHeader(int row, int column, const HeaderCell &cell);

    /// Writes the titles of @p columns to a header row and aligns their cells.
    void setTitles(int row, std::span<const GridColumn> columns, bool bold = false);

    /// Sorts the rows by what @p valueOf makes of their text in @p column, the highest first. Rows
    /// of equal value keep their order.
    void sortDescending(int column, const std::function<double(const QString &text)> &valueOf);

    /// First row whose text in @p column equals @p text exactly, or -1.
    int searchColumn(int column, const QString &text) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Cell
    {
        QString text;
        QColor color;
    };
    using Row = QList<Cell>;

    bool holds(int row, int column) const;
    Cell &cell(int row, int column);
    void changed(int row, int column);
    void headerChanged(int column);

    QList<Qt::Alignment> m_columns;
    QList<QList<HeaderCell>> m_headers;
    QList<Row> m_rows;
    int m_rebuilds = 0; ///< how many Rebuilds are at work
};

/// True while none of the grids has a row.
bool allEmpty(std::span<const SpreadModel> grids);

/// Writes a grid anew: views hear of it once, when this goes, also when an error ends the work half
/// way. Without it they hear of each cell.
class SpreadModel::Rebuild
{
public:
    explicit Rebuild(SpreadModel &grid);
    ~Rebuild();
    Q_DISABLE_COPY_MOVE(Rebuild)

private:
    SpreadModel &m_grid;
};
