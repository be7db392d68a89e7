// SPDX-License-Identifier: MIT
// Buttons in the rows of a grid.
#pragma once

#include <QList>
#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

class QKeyEvent;
class QMouseEvent;
class Spread;

/// Shows the cells of some columns as push buttons, captioned with the cells' texts. On the active
/// row one of them is marked: Left and Right change which, Space and Enter press it.
class SpreadButtons : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// For @p columns of @p grid, which owns this.
    SpreadButtons(Spread *grid, QList<int> columns);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// Presses the button of a cell.
    Q_INVOKABLE void press(int column, int row) { emit pressed(column, row); }

signals:
    void pressed(int column, int row);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    bool keyPress(const QKeyEvent &event);
    bool mouse(const QMouseEvent &event);
    int markedColumn() const;
    void mark(int by);

    Spread *m_grid;
    QList<int> m_columns;
    QPersistentModelIndex m_down; ///< the button that the mouse holds down
};
