// SPDX-License-Identifier: MIT
#include "widgets/spreadheader.h"

#include "widgets/narrowedfont.h"
#include "widgets/spreadmodel.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int CellMargin = 6;
constexpr int LeastRowHeight = 24; // 18 points

} // namespace

SpreadHeader::SpreadHeader(QWidget *parent) : QHeaderView(Qt::Horizontal, parent)
{
    setSectionResizeMode(Stretch);
    setMinimumSectionSize(1);
    setHighlightSections(false);
}

int SpreadHeader::rowHeight(const QFont &font)
{
    const QFontMetrics metrics(font);
    const int thai = metrics.boundingRect(u"ปี้ฎู"_s).height();
    return std::max({LeastRowHeight, metrics.height() + 2, thai + 2});
}

QSize SpreadHeader::sizeHint() const
{
    const int rows = spread() ? std::max(spread()->headerRows(), 1) : 1;
    return {length(), rows * rowHeight(font())};
}

void SpreadHeader::setModel(QAbstractItemModel *model)
{
    QHeaderView::setModel(model);
    if (model) {
        const auto repaint = [this] { viewport()->update(); };
        connect(model, &QAbstractItemModel::headerDataChanged, this, repaint);
        connect(model, &QAbstractItemModel::modelReset, this, &SpreadHeader::fitHeight);
    }
}

/// Has the view lay itself out anew if there are more or fewer header rows than before.
void SpreadHeader::fitHeight()
{
    if (std::exchange(m_rows, spread()->headerRows()) != m_rows)
        emit geometriesChanged();
}

const SpreadModel *SpreadHeader::spread() const
{
    return qobject_cast<const SpreadModel *>(model());
}

void SpreadHeader::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().color(QPalette::Button));
    if (!spread())
        return;
    for (int row = 0; row < spread()->headerRows(); ++row) {
        int column = 1;
        while (column <= spread()->columns()) {
            paintCell(painter, FirstHeaderRow + row, column);
            column += spread()->header(FirstHeaderRow + row, column).span;
        }
    }
}

void SpreadHeader::paintCell(QPainter &painter, int row, int column) const
{
    const auto &cell = spread()->header(row, column);
    const int height = rowHeight(font());
    int width = 0;
    for (int spanned = column; spanned < column + cell.span; ++spanned)
        width += sectionSize(spanned);
    const QRect place(sectionViewportPosition(column), (row - FirstHeaderRow) * height, width,
                      height);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(place.bottomLeft(), place.bottomRight());
    painter.drawLine(place.topRight(), place.bottomRight());

    QFont shown = font();
    shown.setBold(cell.bold);
    const QRect room = place.adjusted(CellMargin, 0, -CellMargin, 0);
    painter.setFont(narrowedFont(shown, cell.text, room.width()));
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(room, int(cell.alignment) | Qt::TextSingleLine, cell.text);
}
