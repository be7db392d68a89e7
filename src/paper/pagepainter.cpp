// SPDX-License-Identifier: MIT
#include "paper/pagepainter.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int TwipsPerPoint = 20;
constexpr int RuleWidth = 10;   // lines and frames: half a point
constexpr int RulingWidth = 15; // ruling of the paper: one pixel at 96 dpi
constexpr int Inset = 100;      // between a text and the edge of its control
constexpr QRgb RulingColor = qRgb(128, 128, 128);

void drawWithPainter(QPainter &painter, QPointF baseline, const QString &text)
{
    painter.drawText(baseline, text);
}

/// Returns the left edge of a text of @p width in its control.
double leftOf(const PageItem &item, double width)
{
    const double space = item.box.width() - 2 * Inset;
    const double left = item.box.left() + Inset;
    if (item.style.alignment & Qt::AlignRight)
        return left + space - width;
    return item.style.alignment & Qt::AlignHCenter ? left + std::max(0.0, (space - width) / 2)
                                                   : left;
}

void drawTextItem(QPainter &painter, const PageItem &item, const TextDrawer &drawText)
{
    const QFontMetricsF metrics(painter.font());
    const double space = item.box.width() - 2 * Inset;
    const double width = metrics.horizontalAdvance(item.text);
    const double baseline =
        std::round(item.box.top() + (item.box.height() - metrics.height()) / 2 + metrics.ascent());
    if (item.style.onWhite) {
        const double left = leftOf(item, std::min(width, space)) - Inset / 2.0;
        painter.fillRect(
            QRectF(left, item.box.top(), std::min(width, space) + Inset, item.box.height()),
            Qt::white);
    }
    if (width <= space) { // usual, and a clip for each text would double the size of a PDF
        drawText(painter, {std::round(leftOf(item, width)), baseline}, item.text);
        return;
    }
    painter.save();
    if (item.style.whole) {
        painter.translate(item.box.left() + Inset, baseline);
        painter.scale(space / width, 1);
        drawText(painter, {0, 0}, item.text);
    } else {
        painter.setClipRect(item.box);
        drawText(painter, {leftOf(item, width), baseline}, item.text);
    }
    painter.restore();
}

} // namespace

QFont reportFont(const TextStyle &style)
{
    QFont font(QStringList{u"Noto Sans"_s, u"Noto Sans Thai"_s, u"Leelawadee UI"_s, u"Tahoma"_s});
    font.setPixelSize(style.points * TwipsPerPoint);
    font.setBold(style.bold);
    font.setHintingPreference(QFont::PreferNoHinting); // equal widths on every device
    return font;
}

void drawPage(QPainter &painter, const ReportPage &page, const TextDrawer &drawText)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(RulingColor), RulingWidth, Qt::SolidLine, Qt::FlatCap));
    painter.drawLines(page.ruling);
    painter.setPen(QPen(Qt::black, RuleWidth, Qt::SolidLine, Qt::FlatCap));
    TextStyle style;
    painter.setFont(reportFont(style));
    for (const PageItem &item : page.items) {
        const QPoint end(item.box.left() + item.box.width(), item.box.top() + item.box.height());
        if (item.kind == ReportControl::Line) {
            painter.drawLine(item.box.topLeft(), end);
        } else if (item.kind == ReportControl::Frame) {
            painter.drawRect(item.box);
        } else {
            if (item.style != style)
                painter.setFont(reportFont(item.style));
            style = item.style;
            drawTextItem(painter, item, drawText ? drawText : drawWithPainter);
        }
    }
}
