// SPDX-License-Identifier: MIT
#include "paper/pageview.h"
#include "script/player.h"
#include "widgets/spread.h"

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

QString describe(const QWidget *control)
{
    const QString text = read(control);
    QString line = nameOf(control) + u' ' + QLatin1String(control->metaObject()->className())
                   + when(!text.isEmpty(), quoted(text))
                   + sideOf(Qt::Alignment(control->property("alignment").toInt()))
                   + when(control->font().bold(), u"bold"_s)
                   + when(!control->isEnabled(), u"disabled"_s)
                   + when(control->focusPolicy() & Qt::TabFocus, u"tab"_s)
                   + when(nameOf(QApplication::focusWidget()) == nameOf(control), u"focus"_s);
    for (const char *trait : {"readOnly", "checked", "editable"})
        line += when(control->property(trait).toBool(), QLatin1String(trait));
    for (const char *name : {"accessibleName", "toolTip"}) {
        const QString words = control->property(name).toString();
        line += when(!words.isEmpty(), QLatin1String(name) + u' ' + quoted(words));
    }
    return line;
}

/// Columns of a fixed width with that in digits, header rows and rows.
QStringList dumpGrid(const Spread &grid)
{
    const SpreadModel &model = *grid.spreadModel();
    QStringList lines{u"    columns"_s};
    for (int column = 1; column <= model.columns(); ++column) {
        const bool fixed = grid.horizontalHeader()->sectionResizeMode(column) == QHeaderView::Fixed;
        const int digits = grid.columnWidth(column) / grid.fontMetrics().horizontalAdvance(u'0');
        const QVariant side = model.data(model.index(0, column), Qt::TextAlignmentRole);
        lines.last() +=
            (column > 1 ? u", "_s : u" "_s) + QString::number(column)
            + (grid.isColumnHidden(column) ? u" hidden"_s : when(fixed, u"%1 digits"_s.arg(digits)))
            + sideOf(Qt::Alignment(side.toInt()));
    }
    for (int row = FirstHeaderRow; row < FirstHeaderRow + model.headerRows(); ++row) {
        QStringList cells;
        for (int column = 1; column <= model.columns();
             column += std::max(1, model.header(row, column).span)) {
            const auto &cell = model.header(row, column);
            cells += quoted(cell.text) + sideOf(cell.alignment) + when(cell.bold, u"bold"_s)
                     + when(cell.span > 1, u"over %1"_s.arg(cell.span));
        }
        lines += u"    header "_s + cells.join(u", "_s);
    }
    for (int row = 1; row <= model.rows(); ++row) {
        QStringList cells;
        for (int column = 0; column <= model.columns(); ++column) {
            const QColor color = model.color(row, column);
            cells += model.text(row, column) + when(color.isValid(), color.name());
        }
        lines += u"    row "_s + quoted(cells.join(u'|'));
    }
    return lines;
}

QStringList dumpPages(const ReportPages &report)
{
    QStringList lines{u"    report "_s + quoted(report.title)
                      + when(report.landscape, u"landscape"_s)};
    for (const ReportPage &page : report.pages) {
        lines += u"    page"_s;
        for (const QLine &line : page.ruling)
            lines += u"    rule %1,%2 %3,%4"_s.arg(line.x1()).arg(line.y1()).arg(line.x2()).arg(
                line.y2());
        for (const auto &[section, name, box, kind, style, text] : page.items) {
            lines +=
                u"    %1 %2,%3 %4x%5"_s.arg(name)
                    .arg(box.x())
                    .arg(box.y())
                    .arg(box.width())
                    .arg(box.height())
                + when(kind == ReportControl::Line, u"line"_s)
                + when(kind == ReportControl::Frame, u"frame"_s)
                + when(kind == ReportControl::Text, u"%1pt "_s.arg(style.points) + quoted(text))
                + sideOf(style.alignment) + when(style.bold, u"bold"_s)
                + when(style.whole, u"whole"_s) + when(style.amount, u"amount"_s)
                + when(style.onWhite, u"white"_s);
        }
    }
    return lines;
}

} // namespace

QStringList dumpWindow(QWidget *window)
{
    QStringList lines{window->objectName() + u' ' + quoted(read(window))};
    QWidget *each = window;
    do {
        if (!each->isVisible() || each->window() != window->window()
            || (each != window && !window->isAncestorOf(each)))
            continue;
        const QString name = each->objectName();
        if (each != window && !name.isEmpty() && !name.startsWith(u"qt_"_s) && !each->focusProxy()
            && (each->focusPolicy() != Qt::NoFocus || !read(each).isEmpty()))
            lines += describe(each);
        if (const auto *grid = qobject_cast<const Spread *>(each))
            lines += dumpGrid(*grid);
        else if (const auto *pages = qobject_cast<const PageView *>(each))
            lines += dumpPages(pages->report());
    } while ((each = each->nextInFocusChain()) != window);
    return lines;
}
