// SPDX-License-Identifier: MIT
#include "paper/pdfexport.h"

#include "paper/pagepainter.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>
#include <QRawFont>
#include <QTextLayout>

#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int TwipsPerInch = 1440;

bool joinsPreviousLetter(QChar letter)
{
    return letter.category() == QChar::Mark_NonSpacing || letter == QChar(u'ำ');
}

/// Returns the end of the part of @p text that starts at @p from: one letter with its marks, or a
/// run of letters without marks.
qsizetype partEnd(const QString &text, qsizetype from)
{
    const auto marked = [&](qsizetype at) {
        return at + 1 < text.size() && joinsPreviousLetter(text[at + 1]) && !text[at].isSurrogate();
    };
    qsizetype end = from + 1;
    if (marked(from)) {
        while (end < text.size() && joinsPreviousLetter(text[end]))
            ++end;
    } else {
        while (end < text.size() && !marked(end))
            ++end;
    }
    return end;
}

/// Draws Thai text so that it can be copied from the PDF. Thai fonts have glyph variants for
/// letters and marks that meet, but QPdfWriter maps only the glyphs of single characters back to
/// text, so variants would be missing in a copy. Marks and variants are therefore drawn as
/// outlines, which PDF readers do not treat as text, and over them, transparent, the glyphs of the
/// single characters.
class CopyableText
{
public:
    void draw(QPainter &painter, QPointF at, const QString &text)
    {
        for (qsizetype from = 0, end = 0; from < text.size(); from = end) {
            end = partEnd(text, from);
            const Part &part = shaped(painter.font(), text.mid(from, end - from));
            if (part.glyphs.isEmpty())
                painter.drawText(at, text.mid(from, end - from));
            else
                drawMarked(painter, at, part);
            at += QPointF(part.width, 0);
        }
    }

private:
    /// A shaped part of a text. Without glyphs it is drawn as it is.
    struct Part
    {
        double width = 0;
        QRawFont font;
        QList<quint32> glyphs;    ///< of the single characters, not variants
        QList<QPointF> positions; ///< of the glyphs
        QPainterPath outlines;
        bool plainBase = false; ///< the first glyph is drawn as visible text, not as an outline
    };

    const Part &shaped(const QFont &font, const QString &text)
    {
        const std::pair key(font, text);
        const auto found = m_parts.constFind(key);
        return found != m_parts.constEnd() ? *found : *m_parts.insert(key, shape(font, text));
    }

    static Part shape(const QFont &font, const QString &text)
    {
        QTextLayout layout(text, font);
        layout.beginLayout();
        const QTextLine line = layout.createLine();
        layout.endLayout();
        Part part;
        part.width = std::round(QFontMetricsF(font).horizontalAdvance(text));
        const QList<QGlyphRun> runs = layout.glyphRuns();
        const bool marked = text.size() > 1 && joinsPreviousLetter(text[1]);
        if (!marked || runs.size() != 1 || !runs[0].rawFont().supportsCharacter(text[0]))
            return part;
        part.font = runs[0].rawFont();
        part.glyphs = part.font.glyphIndexesForString(text);
        part.positions = positionsOf(part, text);
        part.plainBase = runs[0].glyphIndexes().first() == part.glyphs.first();
        part.outlines.setFillRule(Qt::WindingFill);
        for (qsizetype i = part.plainBase ? 1 : 0; i < runs[0].glyphIndexes().size(); ++i) {
            const QPointF position = runs[0].positions()[i] - QPointF(0, line.ascent());
            part.outlines.addPath(
                part.font.pathForGlyph(runs[0].glyphIndexes()[i]).translated(position));
        }
        roundToHalfTwips(part.outlines); // makes the file of a long list a third smaller
        return part;
    }

    static void roundToHalfTwips(QPainterPath &path)
    {
        for (int i = 0; i < path.elementCount(); ++i) {
            const QPainterPath::Element point = path.elementAt(i);
            path.setElementPositionAt(i, std::round(point.x * 2) / 2, std::round(point.y * 2) / 2);
        }
    }

    /// PDF readers sort characters by position, so each mark starts a little before the next letter
    /// and before the mark that follows it.
    static QList<QPointF> positionsOf(const Part &part, const QString &text)
    {
        const double offset = part.font.pixelSize() / 128;
        const QList<QPointF> advances = part.font.advancesForGlyphIndexes(part.glyphs);
        QList<QPointF> positions;
        QPointF at;
        for (qsizetype i = 0; i < part.glyphs.size(); ++i) {
            const bool mark = text[i].category() == QChar::Mark_NonSpacing;
            positions += at - QPointF(mark ? offset * double(part.glyphs.size() - i) : 0, 0);
            at += advances[i];
        }
        return positions;
    }

    static void drawMarked(QPainter &painter, QPointF at, const Part &part)
    {
        const qsizetype first = part.plainBase ? 1 : 0;
        const QPen visible = painter.pen();
        painter.translate(at);
        drawGlyphs(painter, part, 0, first);
        painter.fillPath(part.outlines, visible.color());
        painter.setPen(QColor(0, 0, 0, 0));
        drawGlyphs(painter, part, first, part.glyphs.size() - first);
        painter.setPen(visible);
        painter.translate(-at);
    }

    static void drawGlyphs(QPainter &painter, const Part &part, qsizetype from, qsizetype count)
    {
        QGlyphRun run;
        run.setRawFont(part.font);
        run.setGlyphIndexes(part.glyphs.mid(from, count));
        run.setPositions(part.positions.mid(from, count));
        painter.drawGlyphRun({0, 0}, run);
    }

    QHash<std::pair<QFont, QString>, Part> m_parts;
};

} // namespace

QByteArray pdfOf(const ReportPages &report)
{
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&file);
        writer.setResolution(TwipsPerInch);
        writer.setPageLayout({QPageSize(QPageSize::A4),
                              report.landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                              QMarginsF()});
        writer.setTitle(report.title);
        writer.setCreator(u"Mirakla Desk"_s);
        QPainter painter(&writer);
        CopyableText text;
        const TextDrawer drawText = [&](QPainter &on, QPointF at, const QString &words) {
            text.draw(on, at, words);
        };
        for (const ReportPage &page : report.pages) {
            if (&page != &report.pages.first())
                writer.newPage();
            drawPage(painter, page, drawText);
        }
    }
    return file.data();
}
