// SPDX-License-Identifier: MIT
#include "script/dump.h"

#include "paper/pageview.h"
#include "script/controls.h"
#include "widgets/spread.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>

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
