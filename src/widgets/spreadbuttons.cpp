// SPDX-License-Identifier: MIT
#include "widgets/spreadbuttons.h"

#include "widgets/spread.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr QRgb MarkColor = 0xF0B429; // as the look marks the focus elsewhere

} // namespace

SpreadButtons::SpreadButtons(Spread *grid, QList<int> columns)
    : QStyledItemDelegate(grid), m_grid(grid), m_columns(std::move(columns))
{
    for (const int column : std::as_const(m_columns))
        grid->setItemDelegateForColumn(column, this);
    grid->installEventFilter(this);
    grid->viewport()->installEventFilter(this);
}

void SpreadButtons::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle *style = m_grid->style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, m_grid);

    QStyleOptionButton button;
    button.initFrom(m_grid->viewport());
    button.rect = cell.rect.adjusted(4, 1, -4, -1);
    button.text = cell.text;
    button.fontMetrics = cell.fontMetrics;
    button.palette = m_grid->palette();
    button.state = QStyle::State_Enabled | QStyle::State_Active
                   | (m_down == index ? QStyle::State_Sunken : QStyle::State_Raised);
    const bool marked = m_grid->hasFocus() && index.row() == m_grid->currentIndex().row()
                        && index.column() == markedColumn();
    if (marked) { // the focus frame of a button would be lost in the colour of the active row
        button.palette.setColor(QPalette::Button, QColor(MarkColor));
        button.palette.setColor(QPalette::ButtonText, Qt::black);
    }
    painter->save();
    painter->setFont(cell.font);
    style->drawControl(QStyle::CE_PushButton, &button, painter, m_grid);
    painter->restore();
}

bool SpreadButtons::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        return object == m_grid && keyPress(static_cast<const QKeyEvent &>(*event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return object == m_grid->viewport() && mouse(static_cast<const QMouseEvent &>(*event));
    default:
        return false;
    }
}

bool SpreadButtons::keyPress(const QKeyEvent &event)
{
    const int row = m_grid->activeRow();
    if (row == 0)
        return false;
    switch (event.key()) {
    case Qt::Key_Left:
        mark(-1);
        return true;
    case Qt::Key_Right:
        mark(1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (!event.isAutoRepeat()) // a key that is held down would open row after row
            press(markedColumn(), row);
        return true;
    default:
        return false;
    }
}

/// Takes a press on a button and what follows until the release, so that the grid, whose rows the
/// work of the button may replace, is in the middle of nothing.
bool SpreadButtons::mouse(const QMouseEvent &event)
{
    const QModelIndex under = m_grid->indexAt(event.pos());
    const bool pressing =
        event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
    if (pressing) {
        if (event.button() != Qt::LeftButton || !m_columns.contains(under.column()))
            return false;
        m_grid->setCurrentIndex(under);
        m_down = under;
        m_grid->viewport()->update();
        return true;
    }
    if (!m_down.isValid())
        return false;
    if (event.type() == QEvent::MouseButtonRelease && event.button() == Qt::LeftButton) {
        const bool released = m_down == under; // and not somewhere else
        m_down = QModelIndex();
        m_grid->viewport()->update();
        if (released)
            press(under.column(), under.row() + 1);
    }
    return true;
}

/// The button that the keys press: that of the active cell, or the row's first.
int SpreadButtons::markedColumn() const
{
    const int active = m_grid->currentIndex().column();
    return m_columns.contains(active) ? active : m_columns.first();
}

/// Marks the button @p by places further.
void SpreadButtons::mark(int by)
{
    const auto at =
        std::clamp<qsizetype>(m_columns.indexOf(markedColumn()) + by, 0, m_columns.size() - 1);
    m_grid->setCurrentIndex(m_grid->currentIndex().siblingAtColumn(m_columns[at]));
    m_grid->viewport()->update();
}
