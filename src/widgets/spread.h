// SPDX-License-Identifier: MIT
// Grid view of a SpreadModel, with its header rows above the rows.
#pragma once

#include "widgets/spreadmodel.h"

#include <QItemSelectionModel>
#include <QMap>
#include <QTableView>

class QLineEdit;

/// At most one row is active, which is selected as a whole. Column 0 is hidden, and so may be other
/// columns with data that only code needs. Rows and columns count from 1, header rows from
/// FirstHeaderRow, for automation and code alike.
class Spread : public QTableView
{
    Q_OBJECT

public:
    explicit Spread(QWidget *parent = nullptr);

    /// Shows @p model, which must outlive the view.
    void setSpreadModel(SpreadModel *model);

    /// Returns the model, or null before setSpreadModel().
    SpreadModel *spreadModel() const { return m_model; }

    /// These return the values of the model, for automation.
    Q_INVOKABLE QString text(int row, int column) const;
    Q_INVOKABLE int rows() const;
    Q_INVOKABLE QColor color(int row, int column) const;

    /// Returns the active row, or 0 if there is none.
    Q_INVOKABLE int activeRow() const;

    /// Makes a row active without emitting rowPicked().
    Q_INVOKABLE void setActiveRow(int row);

    /// Hides @p columns in addition to column 0.
    void hideColumns(const QList<int> &columns);

    /// Fixes the width of a column, in digits. Columns without a fixed width share the rest of the
    /// grid.
    void setColumnDigits(int column, int digits);

    /// Sets the minimum height of the rows in points. They are higher if the font needs it.
    void setRowPoints(int points);

signals:
    /// Emitted when the user makes another row active, or presses the mouse button, Space or Enter
    /// on the active row.
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
    int m_rowBefore = 0;  ///< active row before the model was reset
    int m_rowsBefore = 0; ///< number of rows before the model was reset
    QList<int> m_hidden{0};
    bool m_picking = true;     ///< false while code sets the active row
    bool m_rowPressed = false; ///< true while the left button is held after a press on a row
};

/// Finds the first row of each of @p grids whose text in @p column equals that of @p field, and
/// makes it active. Grids without such a row stay as they are. An empty field gets the focus
/// instead.
void searchNumber(QLineEdit &field, int column, const QList<Spread *> &grids);
