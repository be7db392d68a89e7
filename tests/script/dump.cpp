// SPDX-License-Identifier: MIT
#include "script/dump.h"

#include "paper/pageview.h"
#include "script/controls.h"
#include "widgets/spread.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

/// @p mark behind a blank if @p is true.
QString when(bool is, const QString &mark)
{
    return is ? u' ' + mark : QString();
}

QString sideOf(Qt::Alignment alignment)
{
    return when(alignment & Qt::AlignRight, u"right"_s)
           + when(alignment & Qt::AlignHCenter, u"center"_s);
}

QString quoted(QString text)
{
    return u'"' + text.replace(u'\n', u"\\n"_s) + u'"';
}

QString boxOf(const QRect &box)
{
    return u"%1,%2 %3x%4"_s.arg(box.x()).arg(box.y()).arg(box.width()).arg(box.height());
}

Qt::Alignment alignmentOf(const QWidget *control)
{
    return Qt::Alignment(control->property("alignment").toInt());
}

QString describe(const QWidget *control)
{
    const auto *field = qobject_cast<const QLineEdit *>(control);
    const auto *button = qobject_cast<const QAbstractButton *>(control);
    const auto *combo = qobject_cast<const QComboBox *>(control);
    const QString text = read(control, {});
    const QString title = QString::fromLatin1(control->metaObject()->className());
    return nameOf(control) + u' ' + title + when(!text.isEmpty(), quoted(text))
           + sideOf(field ? field->alignment() : alignmentOf(control))
           + when(control->font().bold(), u"bold"_s) + when(!control->isEnabled(), u"disabled"_s)
           + when(control->focusPolicy() & Qt::TabFocus, u"tab"_s)
           + when(nameOf(QApplication::focusWidget()) == nameOf(control), u"focus"_s)
           + when(field && field->isReadOnly(), u"readonly"_s)
           + when(button && button->isChecked(), u"checked"_s)
           + when(combo && combo->isEditable(), u"editable"_s)
           + when(!control->accessibleName().isEmpty(),
                  u"says "_s + quoted(control->accessibleName()))
           + when(!control->toolTip().isEmpty(), u"tip "_s + quoted(control->toolTip()));
}

/// Columns with a width of their own say it in digits.
QStringList describeColumns(const Spread &grid)
{
    const SpreadModel &model = *grid.spreadModel();
    const int digit = grid.fontMetrics().horizontalAdvance(u'0');
    QStringList columns;
    for (int column = 1; column <= model.columns(); ++column) {
        const QVariant side = model.data(model.index(0, column), Qt::TextAlignmentRole);
        const bool fixed = grid.horizontalHeader()->sectionResizeMode(column) == QHeaderView::Fixed;
        columns += QString::number(column) + when(grid.isColumnHidden(column), u"hidden"_s)
                   + when(fixed && !grid.isColumnHidden(column),
                          u"%1 digits"_s.arg(qRound(double(grid.columnWidth(column)) / digit)))
                   + sideOf(Qt::Alignment(side.toInt()));
    }
    return columns;
}

QStringList dumpGrid(const Spread &grid)
{
    const SpreadModel &model = *grid.spreadModel();
    QStringList lines{u"columns "_s + describeColumns(grid).join(u", "_s)};
    for (int row = FirstHeaderRow; row < FirstHeaderRow + model.headerRows(); ++row) {
        QStringList cells;
        for (int column = 1; column <= model.columns();) {
            const auto &cell = model.header(row, column);
            cells += quoted(cell.text) + sideOf(cell.alignment) + when(cell.bold, u"bold"_s)
                     + when(cell.span > 1, u"over %1"_s.arg(cell.span));
            column += std::max(1, cell.span);
        }
        lines += u"header "_s + cells.join(u", "_s);
    }
    for (int row = 1; row <= model.rows(); ++row) {
        QStringList cells;
        for (int column = 0; column <= model.columns(); ++column) {
            const QColor color = model.color(row, column);
            cells += model.text(row, column) + when(color.isValid(), color.name());
        }
        lines += u"row "_s + quoted(cells.join(u'|'));
    }
    return lines;
}

QStringList dumpPages(const ReportPages &report)
{
    QStringList lines{u"report "_s + quoted(report.title) + when(report.landscape, u"landscape"_s)};
    for (const ReportPage &page : report.pages) {
        lines += u"page"_s;
        for (const QLine &line : page.ruling)
            lines +=
                u"rule %1,%2 %3,%4"_s.arg(line.x1()).arg(line.y1()).arg(line.x2()).arg(line.y2());
        for (const PageItem &item : page.items) {
            const TextStyle &style = item.style;
            lines += item.name + u' ' + boxOf(item.box)
                     + when(item.kind == ReportControl::Line, u"line"_s)
                     + when(item.kind == ReportControl::Frame, u"frame"_s)
                     + when(item.kind == ReportControl::Text,
                            u"%1pt "_s.arg(style.points) + quoted(item.text))
                     + sideOf(style.alignment) + when(style.bold, u"bold"_s)
                     + when(style.whole, u"whole"_s) + when(style.amount, u"amount"_s)
                     + when(style.onWhite, u"white"_s);
        }
    }
    return lines;
}

/// What stands in a grid or on the pages of a report.
QStringList contentOf(const QWidget &control)
{
    const auto *grid = qobject_cast<const Spread *>(&control);
    const auto *pages = qobject_cast<const PageView *>(&control);
    QStringList lines = grid ? dumpGrid(*grid) : pages ? dumpPages(pages->report()) : QStringList();
    return lines.replaceInStrings(QRegularExpression(u"^"_s), u"    "_s);
}

/// What a person sees as one control, or reads.
bool isControl(const QWidget *widget)
{
    const QString name = widget->objectName();
    return !name.isEmpty() && !name.startsWith(u"qt_"_s) && !widget->focusProxy()
           && (widget->focusPolicy() != Qt::NoFocus || !read(widget, {}).isEmpty());
}

/// Reads the records of a sheet that lies in its file in one piece, as the program writes it.
class SheetReader
{
public:
    explicit SheetReader(QByteArray bytes) : m_bytes(std::move(bytes)) {}

    QStringList lines()
    {
        constexpr int EndOfPart = 0x0a;
        qsizetype next = m_bytes.indexOf(QByteArray::fromHex("0908100000060500"));
        for (int parts = 0; next >= 0 && parts < 2; parts += m_kind == EndOfPart ? 1 : 0) {
            m_at = next + 4;
            m_kind = number(-4);
            m_size = number(-2);
            next = m_at + m_size;
            readRecord();
        }
        return m_lines;
    }

private:
    template<typename Number = quint16>
    Number number(qsizetype offset) const
    {
        return qFromLittleEndian<Number>(m_bytes.constData() + m_at + offset);
    }

    void readRecord()
    {
        enum { Font = 0x31, Pane = 0x41, Column = 0x7d, Setup = 0xa1, Format = 0xe0, Texts = 0xfc };
        enum { TextCell = 0xfd, NumberCell = 0x203, PrintTitles = 0x18 };
        if (m_kind == Font)
            m_bold += number(6) > 400;
        else if (m_kind == Format)
            readFormat();
        else if (m_kind == Texts)
            readTexts();
        else if (m_kind == Column)
            m_lines += u"column %1 width %2"_s.arg(number(0)).arg(number(4));
        else if (m_kind == Pane)
            m_lines += u"frozen rows %1"_s.arg(number(2));
        else if (m_kind == PrintTitles)
            m_lines +=
                u"repeated rows %1 to %2"_s.arg(number(m_size - 8) + 1).arg(number(m_size - 6) + 1);
        else if (m_kind == Setup)
            m_lines += u"paper %1"_s.arg(number(0)) + when((number(10) & 2) == 0, u"landscape"_s);
        else if (m_kind == TextCell)
            addCell(quoted(m_texts.value(number(6))));
        else if (m_kind == NumberCell)
            addCell(QString::number(number<double>(6), 'f', 2));
    }

    void addCell(const QString &content)
    {
        m_lines += u"cell %1,%2 "_s.arg(number(0) + 1).arg(number(2) + 1) + content
                   + m_formats.value(number(4));
    }

    void readFormat()
    {
        const int side = number(6) & 7;
        m_formats += when(number(2) != 0, u"format %1"_s.arg(number(2)))
                     + when(side == 2, u"center"_s) + when(side == 3, u"right"_s)
                     + when(m_bold.value(number(0)), u"bold"_s);
    }

    void readTexts()
    {
        qsizetype offset = 8;
        for (int left = number(4); left > 0; --left) {
            const qsizetype size = number(offset);
            const bool wide = (number(offset + 2) & 1) != 0;
            const QByteArray text = m_bytes.mid(m_at + offset + 3, wide ? 2 * size : size);
            m_texts +=
                wide ? QStringDecoder(QStringDecoder::Utf16LE)(text) : QString::fromLatin1(text);
            offset += 3 + text.size();
        }
    }

    QByteArray m_bytes;
    qsizetype m_at = 0; ///< of the record's content
    int m_kind = 0;
    int m_size = 0;
    QList<bool> m_bold;
    QStringList m_formats;
    QStringList m_texts;
    QStringList m_lines;
};

} // namespace

QStringList dumpWindow(QWidget *window)
{
    QStringList lines{window->objectName() + u' ' + quoted(read(window))};
    QWidget *each = window;
    do {
        const bool shown = each->isVisible() && each->window() == window->window()
                           && (each == window || window->isAncestorOf(each));
        if (shown && each != window && isControl(each))
            lines += describe(each);
        if (shown)
            lines += contentOf(*each);
        each = each->nextInFocusChain();
    } while (each != window);
    return lines;
}

QStringList dumpSheet(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {u"no file"_s};
    return SheetReader(file.readAll()).lines();
}
