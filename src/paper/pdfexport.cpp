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

bool joinsTheLetterBefore(QChar letter)
{
    return letter.category() == QChar::Mark_NonSpacing || letter == QChar(u'ำ');
}

/// Where the part of @p text that begins at @p from ends: a letter with the marks that it
/// carries, or as many letters without marks as there are.
qsizetype partEnd(const QString &text, qsizetype from)
{
    const auto marked = [&](qsizetype at) {
        return at + 1 < text.size() && joinsTheLetterBefore(text[at + 1])
               && !text[at].isSurrogate();
    };
    qsizetype end = from + 1;
    if (marked(from)) {
        while (end < text.size() && joinsTheLetterBefore(text[end]))
            ++end;
    } else {
        while (end < text.size() && !marked(end))
            ++end;
    }
    return end;
}

/// Draws Thai text so that it can be copied. Thai type has variants of letters and marks for
/// where they meet, and the writer knows only glyphs that stand for a letter by themselves: a
/// variant would be copied as nothing. So marks, and variants of letters, are drawn as outlines,
/// which no reader takes for text, and their letters laid over them unseen.
class CopyableText
{
public:
    void draw(QPainter &painter, QPointF at, const QString &text)
    {
        for (qsizetype from = 0, end = 0; from < text.size(); from = end) {
            end = partEnd(text, from);
            const Part &part = shaped(painter.font(), text.mid(from, end - from));
            if (part.letters.isEmpty())
                painter.drawText(at, text.mid(from, end - from));
            else
                drawMarked(painter, at, part);
            at += QPointF(part.width, 0);
        }
    }

private:
    /// A part of a text as it is drawn; letters are told apart only where one carries marks.
    struct Part
    {
        double width = 0;
        QRawFont font;
        QList<quint32> letters; ///< as they stand in the type's table of letters
        QList<QPointF> places;  ///< of the letters
        QPainterPath outlines;
        bool plainBase = false; ///< the first letter is drawn as text, not as an outline
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
        const bool marked = text.size() > 1 && joinsTheLetterBefore(text[1]);
        if (!marked || runs.size() != 1 || !runs[0].rawFont().supportsCharacter(text[0]))
            return part;
        part.font = runs[0].rawFont();
        part.letters = part.font.glyphIndexesForString(text);
        part.places = placesOf(part, text);
        part.plainBase = runs[0].glyphIndexes().first() == part.letters.first();
        part.outlines.setFillRule(Qt::WindingFill);
        for (qsizetype i = part.plainBase ? 1 : 0; i < runs[0].glyphIndexes().size(); ++i) {
            const QPointF place = runs[0].positions()[i] - QPointF(0, line.ascent());
            part.outlines.addPath(
                part.font.pathForGlyph(runs[0].glyphIndexes()[i]).translated(place));
        }
        roundToHalfTwips(part.outlines); // nobody sees less, and a long list is a third shorter
        return part;
    }

    static void roundToHalfTwips(QPainterPath &path)
    {
        for (int i = 0; i < path.elementCount(); ++i) {
            const QPainterPath::Element point = path.elementAt(i);
            path.setElementPositionAt(i, std::round(point.x * 2) / 2, std::round(point.y * 2) / 2);
        }
    }

    /// Readers sort letters by where they begin, so each mark begins a hair before the next
    /// letter, and before the mark that follows it.
    static QList<QPointF> placesOf(const Part &part, const QString &text)
    {
        const double hair = part.font.pixelSize() / 128;
        const QList<QPointF> advances = part.font.advancesForGlyphIndexes(part.letters);
        QList<QPointF> places;
        QPointF at;
        for (qsizetype i = 0; i < part.letters.size(); ++i) {
            const bool mark = text[i].category() == QChar::Mark_NonSpacing;
            places += at - QPointF(mark ? hair * double(part.letters.size() - i) : 0, 0);
            at += advances[i];
        }
        return places;
    }

    static void drawMarked(QPainter &painter, QPointF at, const Part &part)
    {
        const qsizetype first = part.plainBase ? 1 : 0;
        const QPen visible = painter.pen();
        painter.translate(at);
        drawLetters(painter, part, 0, first);
        painter.fillPath(part.outlines, visible.color());
        painter.setPen(QColor(0, 0, 0, 0));
        drawLetters(painter, part, first, part.letters.size() - first);
        painter.setPen(visible);
        painter.translate(-at);
    }

    static void drawLetters(QPainter &painter, const Part &part, qsizetype from, qsizetype count)
    {
        QGlyphRun run;
        run.setRawFont(part.font);
        run.setGlyphIndexes(part.letters.mid(from, count));
        run.setPositions(part.places.mid(from, count));
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
        const TextDrawer drawText = [&](QPainter &on, QPointF at, const QString &letters) {
            text.draw(on, at, letters);
        };
        for (const ReportPage &page : report.pages) {
            if (&page != &report.pages.first())
                writer.newPage();
            drawPage(painter, page, drawText);
        }
    }
    return file.data();
}
