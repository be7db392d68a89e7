// SPDX-License-Identifier: MIT
#include "platform/spread.h"

#include "platform/spreadheader.h"

#include <QEvent>
#include <QHeaderView>

#include <algorithm>

Spread::Spread(QWidget *parent) : QTableView(parent)
{
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
    const auto hideRowHeader = [this] { setColumnHidden(0, true); };
    connect(model, &SpreadModel::modelReset, this, hideRowHeader);
    hideRowHeader();
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
    if (m_model)
        setCurrentIndex(m_model->index(row - 1, 1));
}

void Spread::focusInEvent(QFocusEvent *event)
{
    QTableView::focusInEvent(event);
    if (currentIndex().isValid()) // reached by Tab the toolkit makes a row active and marks none
        selectRow(currentIndex().row());
}

QItemSelectionModel::SelectionFlags Spread::selectionCommand(const QModelIndex &index,
                                                             const QEvent *) const
{
    if (!index.isValid())
        return QItemSelectionModel::NoUpdate;
    return QItemSelectionModel::ClearAndSelect
           | QItemSelectionModel::Rows; // never unmarked by Ctrl
}

void Spread::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitRowHeights();
}

void Spread::fitRowHeights()
{
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(SpreadHeader::rowHeight(font()));
}
