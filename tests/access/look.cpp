// SPDX-License-Identifier: MIT
#include "script/player.h"
#include "widgets/narrowedfont.h"
#include "widgets/spread.h"

#include <QAccessible>

#include <cmath>
#include <map>

namespace {

/// What @p control needs to show all of its words.
QSize needOf(const QWidget *control)
{
    if (control->hasHeightForWidth())
        return {0, control->heightForWidth(control->width())};
    if (!control->inherits("QLineEdit") && !control->inherits("QGroupBox"))
        return control->sizeHint();
    const QFontMetrics font(control->font());
    return {font.horizontalAdvance(read(control)) + 8,
            font.tightBoundingRect(read(control)).height()};
}

/// True if a grid can narrow the texts of @p row enough. A title over several columns has room.
bool showsRow(const Spread &grid, int row)
{
    for (int column = 1; column <= grid.spreadModel()->columns(); ++column) {
        const int width = grid.columnWidth(column) - 4;
        const QFontMetrics font(narrowedFont(grid.font(), grid.text(row, column), width));
        const bool spans = row < 0 && grid.spreadModel()->header(row, column).span > 1;
        if (!spans && width > 0 && font.horizontalAdvance(grid.text(row, column)) > width)
            return false;
    }
    return true;
}

/// How far what is painted in @p control stands out from its background, as to one.
double contrastOf(QWidget *control)
{
    scrollTo(control);
    const QRect inner = control->rect().adjusted(4, 4, -4, -4); // no frame
    const QRect place(control->mapTo(control->window(), inner.topLeft()), inner.size());
    const QImage picture = control->window()->grab(place).toImage();
    std::map<double, int> lights;
    for (int at = 0; at < picture.width() * picture.height(); ++at) {
        const QRgb color = picture.pixel(at % picture.width(), at / picture.width());
        ++lights[std::pow(qGray(color) / 255.0, 2.2) + 0.05];
    }
    const auto isRarer = [](const auto &a, const auto &b) { return a.second < b.second; };
    const double background = std::max_element(lights.begin(), lights.end(), isRarer)->first;
    return std::max(lights.rbegin()->first / background, background / lights.begin()->first);
}

} // namespace

QStringList faultsIn(QWidget *form)
{
    QStringList faults;
    QStringList names;
    QWidgetList round;
    for (; !round.contains(QApplication::focusWidget()); pressKey(u"<Tab>"_s))
        round += QApplication::focusWidget();
    const QRect screen = form->screen()->availableGeometry();
    if (!screen.contains(form->geometry()))
        faults += u"the window is larger than the screen"_s;
    for (QWidget *each : form->findChildren<QWidget *>()) {
        if (!each->isVisible() || each->window() != form || each->focusProxy())
            continue;
        const auto check = [&](bool good, const QString &fault) {
            if (!good)
                faults += nameOf(each) + u" \""_s + read(each) + u"\" "_s + fault;
        };
        if (each->isEnabled()
            && (each->inherits("QAbstractButton") || each->focusPolicy() != Qt::NoFocus)) {
            auto &spoken = *QAccessible::queryAccessibleInterface(each);
            names +=
                QString::number(spoken.role()) + u' ' + spoken.text(QAccessible::Name).trimmed();
            check(!names.last().endsWith(u' ') && names.count(names.last()) == 1,
                  u"has no own name"_s);
            // Of several radio buttons Tab passes one.
            check(round.contains(each) || each->inherits("QRadioButton"),
                  u"is passed over by Tab"_s);
        }
        const auto *area = qobject_cast<QAbstractScrollArea *>(each);
        if (const auto *grid = qobject_cast<Spread *>(each)) {
            const int height = grid->verticalHeader()->defaultSectionSize();
            check(grid->viewport()->height() >= 4 * height, u"shows too few rows"_s);
            for (int row = FirstHeaderRow; row <= grid->rows(); ++row) {
                if (row > 0 || row < FirstHeaderRow + grid->spreadModel()->headerRows())
                    check(showsRow(*grid, row), u"cuts a text off"_s);
            }
            check(contrastOf(grid->horizontalHeader()) >= 4.5, u"has a faint header"_s);
            check(grid->rows() == 0 || contrastOf(grid->viewport()) >= 4.5, u"is faint"_s);
        } else if (area && each->inherits("QScrollArea")) {
            check(area->horizontalScrollBar()->maximum() == 0, u"is too wide"_s);
            check(area->verticalScrollBar()->maximum() == 0 || screen.height() < 600,
                  u"is too high"_s);
        } else if (!area && !read(each).isEmpty() && !each->inherits("QProgressBar")) {
            check(needOf(each).boundedTo(each->size()) == needOf(each), u"is cut off"_s);
            check(contrastOf(each) >= (each->isEnabled() ? 4.5 : 3), u"is faint"_s);
            check(QFontInfo(each->font()).pointSizeF() >= 10, u"is small"_s);
        }
    }
    return faults;
}
