// SPDX-License-Identifier: MIT
// Push buttons in the rows of a grid.
#pragma once

#include <QList>
#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

class QKeyEvent;
class QMouseEvent;
class Spread;

/// Paints the cells of some columns as push buttons with the cell texts as captions. One button of
/// the active row is marked: Left and Right move the mark, Space and Enter press the button.
class SpreadButtons : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Handles @p columns of @p grid, which owns this object.
    SpreadButtons(Spread *grid, QList<int> columns);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// Presses the button of a cell, for automation.
    Q_INVOKABLE void press(int column, int row) { emit pressed(column, row); }

signals:
    /// Emitted when a button is pressed by a click, a key or press(). Both arguments count from 1.
    void pressed(int column, int row);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    bool handleKey(const QKeyEvent &event);
    bool handleMouse(const QMouseEvent &event);
    int markedColumn() const;
    void moveMark(int step);

    Spread *m_grid;
    QList<int> m_columns;
    QPersistentModelIndex m_down; ///< button held down with the mouse
};
