// SPDX-License-Identifier: MIT
#include "widgets/spreadbuttons.h"

#include "widgets/spread.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr QRgb MarkColor = 0xF0B429; // focus colour of the style sheet

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
    if (marked) { // a focus frame is hard to see on the colour of the active row
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
        return object == m_grid && handleKey(static_cast<const QKeyEvent &>(*event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return object == m_grid->viewport()
               && handleMouse(static_cast<const QMouseEvent &>(*event));
    default:
        return false;
    }
}

bool SpreadButtons::handleKey(const QKeyEvent &event)
{
    const int row = m_grid->activeRow();
    if (row == 0)
        return false;
    switch (event.key()) {
    case Qt::Key_Left:
        moveMark(-1);
        return true;
    case Qt::Key_Right:
        moveMark(1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (!event.isAutoRepeat()) // a held key would open one row after another
            press(markedColumn(), row);
        return true;
    default:
        return false;
    }
}

/// Consumes a press on a button and all mouse events up to its release. A slot connected to
/// pressed() may replace the rows of the grid, so the grid must not be handling a mouse event then.
bool SpreadButtons::handleMouse(const QMouseEvent &event)
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
        const bool releasedOnButton = m_down == under;
        m_down = QModelIndex();
        m_grid->viewport()->update();
        if (releasedOnButton)
            press(under.column(), under.row() + 1);
    }
    return true;
}

/// Returns the column of the button that keys press: the active cell if it is a button, otherwise
/// the first button of the row.
int SpreadButtons::markedColumn() const
{
    const int active = m_grid->currentIndex().column();
    return m_columns.contains(active) ? active : m_columns.first();
}

/// Moves the mark by @p step buttons, negative to the left.
void SpreadButtons::moveMark(int step)
{
    const auto at =
        std::clamp<qsizetype>(m_columns.indexOf(markedColumn()) + step, 0, m_columns.size() - 1);
    m_grid->setCurrentIndex(m_grid->currentIndex().siblingAtColumn(m_columns[at]));
    m_grid->viewport()->update();
}
