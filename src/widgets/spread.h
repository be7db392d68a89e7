// SPDX-License-Identifier: MIT
// The grid on the screen: shows a SpreadModel with its header rows above the rows.
#pragma once

#include "widgets/spreadmodel.h"

#include <QItemSelectionModel>
#include <QMap>
#include <QTableView>

class QLineEdit;

/// One row is active at a time and shown whole; column 0 is hidden, and so may be others that carry
/// what code wants to know of a row. Rows and columns count from 1, header rows from
/// FirstHeaderRow, for automation as for code.
class Spread : public QTableView
{
    Q_OBJECT

public:
    explicit Spread(QWidget *parent = nullptr);

    /// Shows @p model, which must outlive this.
    void setSpreadModel(SpreadModel *model);
    SpreadModel *spreadModel() const { return m_model; }

    Q_INVOKABLE QString text(int row, int column) const;
    Q_INVOKABLE int rows() const;
    Q_INVOKABLE QColor color(int row, int column) const;

    /// The active row, or 0 while there is none. Setting it is no picking.
    Q_INVOKABLE int activeRow() const;
    Q_INVOKABLE void setActiveRow(int row);

    /// Hides @p columns beside column 0.
    void hideColumns(const QList<int> &columns);

    /// Gives a column a width of its own, in digits; those without share the rest of the grid.
    void setColumnDigits(int column, int digits);

    /// Height of the rows in points; they are higher where the type needs it.
    void setRowPoints(int points);

signals:
    /// The user has picked a row: by moving to it, by a click, or by Space or Enter on the one that
    /// is active.
    void rowPicked(int row);

    void rowClicked(); ///< a click on a row, or Space on the active one
    void rowOpened();  ///< a double click on a row, or Enter on the active one

protected:
    void focusInEvent(QFocusEvent *event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
    void changeEvent(QEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyboardSearch(const QString &search) override;

private:
    void fitRowHeights();
    void fitColumns();

    SpreadModel *m_model = nullptr;
    QMap<int, int> m_columnDigits;
    int m_rowPoints = 18;
    int m_rowBefore = 0;  ///< the active row before the model was reset
    int m_rowsBefore = 0; ///< how many rows it had
    QList<int> m_hidden{0};
    bool m_picking = true;     ///< false while code sets the active row
    bool m_rowPressed = false; ///< the mouse button went down on a row and is held
};

/// Makes the row of the number in @p field active in each of @p grids that has it; a miss is
/// silent. An empty field gets the focus instead.
void searchNumber(QLineEdit &field, int column, const QList<Spread *> &grids);
