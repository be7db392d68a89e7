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
constexpr int MinRowHeight = 24; // 18 points at 96 dpi

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
    const int thaiHeight = metrics.boundingRect(u"ปี้ฎู"_s).height();
    return std::max({MinRowHeight, metrics.height() + 2, thaiHeight + 2});
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

/// Makes the view update its layout if the number of header rows has changed.
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
    const QRect cellRect(sectionViewportPosition(column), (row - FirstHeaderRow) * height, width,
                         height);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(cellRect.bottomLeft(), cellRect.bottomRight());
    painter.drawLine(cellRect.topRight(), cellRect.bottomRight());

    QFont shown = font();
    shown.setBold(cell.bold);
    const QRect textRect = cellRect.adjusted(CellMargin, 0, -CellMargin, 0);
    painter.setFont(narrowedFont(shown, cell.text, textRect.width()));
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(textRect, int(cell.alignment) | Qt::TextSingleLine, cell.text);
}
