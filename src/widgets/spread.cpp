// SPDX-License-Identifier: MIT
#include "widgets/spread.h"

#include "runtime/values.h"
#include "widgets/narrowedfont.h"
#include "widgets/spreadheader.h"

#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

namespace {

/// Narrows the font of texts that are wider than their cell.
class CellDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const QStyle *style = option->widget->style();
        const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, option, option->widget);
        option->font =
            narrowedFont(option->font, option->text, option->rect.width() - 2 * (margin + 1));
        option->fontMetrics = QFontMetrics(option->font);
    }
};

} // namespace

Spread::Spread(QWidget *parent) : QTableView(parent)
{
    setItemDelegate(new CellDelegate(this));
    setHorizontalHeader(new SpreadHeader(this));
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false); // Tab leaves the grid
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerItem);
    setWordWrap(false);
    setAlternatingRowColors(true);
    fitRowHeights();
}

void Spread::setSpreadModel(SpreadModel *model)
{
    m_model = model;
    setModel(model);
    connect(model, &SpreadModel::modelAboutToBeReset, this, [this] {
        m_rowBefore = activeRow();
        m_rowsBefore = rows();
    });
    connect(model, &SpreadModel::modelReset, this, [this] {
        fitColumns();
        setAutoScroll(rows() != m_rowsBefore); // same number of rows: do not scroll
        if (m_rowBefore > 0 && rows() > 0)     // Enter still works after a reload
            setActiveRow(std::min(m_rowBefore, rows()));
        setAutoScroll(true);
    });
    fitColumns();
}

QString Spread::text(int row, int column) const
{
    return m_model ? m_model->text(row, column) : QString();
}

int Spread::rows() const
{
    return m_model ? m_model->rows() : 0;
}

QColor Spread::color(int row, int column) const
{
    return m_model ? m_model->color(row, column) : QColor();
}

int Spread::activeRow() const
{
    return currentIndex().isValid() ? currentIndex().row() + 1 : 0;
}

void Spread::setActiveRow(int row)
{
    m_picking = false;
    if (m_model)
        setCurrentIndex(m_model->index(row - 1, 1));
    m_picking = true;
}

void Spread::setRowPoints(int points)
{
    m_rowPoints = points;
    fitRowHeights();
}

void Spread::hideColumns(const QList<int> &columns)
{
    m_hidden += columns;
    fitColumns();
}

void Spread::setColumnDigits(int column, int digits)
{
    m_columnDigits.insert(column, digits);
    fitColumns();
}

void Spread::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    if (m_picking && current.isValid() && current.row() != previous.row())
        emit rowPicked(current.row() + 1);
}

/// Ignores presses outside the rows, and drags that start there.
void Spread::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) // no other button moves the active row
        return;
    m_rowPressed = indexAt(event->pos()).isValid();
    if (!m_rowPressed)
        return;
    const int before = activeRow();
    QTableView::mousePressEvent(event);
    if (before > 0 && before == activeRow())
        emit rowPicked(before);
}

void Spread::mouseMoveEvent(QMouseEvent *event)
{
    if (m_rowPressed)
        QTableView::mouseMoveEvent(event);
}

/// The active row follows the mouse while the button is held, so a click counts on release.
void Spread::mouseReleaseEvent(QMouseEvent *event)
{
    QTableView::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && std::exchange(m_rowPressed, false) && activeRow() > 0)
        emit rowClicked();
}

/// Makes a row active like a single press: the first press of the double click may have gone to a
/// box or a list that covered the grid.
void Spread::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    mousePressEvent(event);
    if (!std::exchange(m_rowPressed, false)) // the release may go to the window that opens
        return;
    emit rowClicked();
    emit rowOpened();
}

/// Disabled: an amount typed with the focus in the wrong place would move the active row.
void Spread::keyboardSearch(const QString &) {}

void Spread::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (activeRow() == 0 || (!enter && event->key() != Qt::Key_Space)) {
        QTableView::keyPressEvent(event);
        return;
    }
    if (event->isAutoRepeat()) // a held key would open one row after another
        return;
    emit rowPicked(activeRow());
    if (enter)
        emit rowOpened();
    else
        emit rowClicked();
}

void Spread::focusInEvent(QFocusEvent *event)
{
    QTableView::focusInEvent(event);
    if (currentIndex().isValid()) // on Tab, QTableView makes a row current without selecting it
        selectRow(currentIndex().row());
}

QItemSelectionModel::SelectionFlags Spread::selectionCommand(const QModelIndex &index,
                                                             const QEvent *) const
{
    if (!index.isValid())
        return QItemSelectionModel::NoUpdate;
    return QItemSelectionModel::ClearAndSelect
           | QItemSelectionModel::Rows; // Ctrl must not deselect the row
}

void Spread::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange)
        return;
    fitRowHeights();
    fitColumns();
}

void Spread::fitColumns()
{
    if (!m_model || m_model->columns() < 1)
        return;
    for (const int column : std::as_const(m_hidden)) {
        if (!isColumnHidden(column))
            setColumnHidden(column, true);
    }
    const int digit = fontMetrics().horizontalAdvance(u'0');
    for (auto fixed = m_columnDigits.cbegin(); fixed != m_columnDigits.cend(); ++fixed) {
        horizontalHeader()->setSectionResizeMode(fixed.key(), QHeaderView::Fixed);
        horizontalHeader()->resizeSection(fixed.key(), (fixed.value() + 2) * digit);
    }
}

void Spread::fitRowHeights()
{
    verticalHeader()->setMinimumSectionSize(1);
    constexpr double PointsPerInch = 72;
    const int minimum = int(m_rowPoints * logicalDpiY() / PointsPerInch);
    verticalHeader()->setDefaultSectionSize(std::max(minimum, SpreadHeader::rowHeight(font())));
}

void searchNumber(QLineEdit &field, int column, const QList<Spread *> &grids)
{
    if (trimBlanks(field.text()).isEmpty()) {
        field.setFocus();
        return;
    }
    for (Spread *grid : grids) {
        const int row = grid->spreadModel()->searchColumn(column, field.text());
        if (row > 0)
            grid->setActiveRow(row);
    }
}
