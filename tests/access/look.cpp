// SPDX-License-Identifier: MIT
#include "access/look.h"

#include "fields/fieldguard.h"
#include "widgets/narrowedfont.h"
#include "widgets/spread.h"

#include <QComboBox>
#include <QFontInfo>
#include <QGroupBox>
#include <QHash>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOption>
#include <QTabBar>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int LeastRows = 4;       // of a grid, or scrolling is all that one does
constexpr int SmallDesktop = 600;  // pixels high: a page has to be scrolled there
constexpr double LeastPoints = 10; // of type
constexpr double LeastContrast = 4.5;
constexpr double LeastDisabled = 3;

/// A text on the window, the place that it has and the room that it needs.
struct Words
{
    QWidget *widget;
    QString text;
    QRect place; ///< in the widget
    QSize need;
    bool shown = true; ///< and not only what may come to stand there

    Words(QWidget *on, const QString &words, const QRect &room, const QFont &type)
        : widget(on), text(words), place(room),
          need(QFontMetrics(type).horizontalAdvance(words),
               QFontMetrics(type).tightBoundingRect(words).height())
    {}
    Words(QWidget *on, const QString &words, const QSize &needed)
        : widget(on), text(words), place(on->rect()), need(needed)
    {}
    QString named() const
    {
        const QWidget *control = widget;
        while (control->objectName().isEmpty() || control->objectName().startsWith(u"qt_"_s))
            control = control->parentWidget();
        return control->objectName() + u" \""_s + text + u'"';
    }
};

void addField(QList<Words> &all, QLineEdit *field)
{
    QStyleOptionFrame option;
    option.initFrom(field);
    option.lineWidth = field->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, field);
    const QRect place = field->style()
                            ->subElementRect(QStyle::SE_LineEditContents, &option, field)
                            .adjusted(2, 0, -2, 0);
    all += {field, field->text().isEmpty() ? field->placeholderText() : field->text(), place,
            field->font()};
    const auto guards = field->window()->findChildren<FieldGuard *>();
    for (const FieldGuard *guard : guards) {
        const FieldRule rule = guard->rule(field);
        if (rule.field && rule.filter == FieldFilter::Digits) {
            all += {field, QString(rule.longest, u'8'), place, field->font()};
            all.last().shown = false;
        }
    }
}

void addCombo(QList<Words> &all, QComboBox *combo)
{
    QStyleOptionComboBox option;
    option.initFrom(combo);
    const QRect place = combo->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                       QStyle::SC_ComboBoxEditField, combo);
    all += {combo, combo->currentText(), place, combo->font()};
    for (int at = 0; at < combo->count(); ++at) {
        all += {combo, combo->itemText(at), place, combo->font()};
        all.last().shown = false;
    }
}

/// A grid narrows its type where it has to.
void addCell(QList<Words> &all, QWidget *on, const QString &text, const QRect &place,
             const QFont &type)
{
    all += {on, text, place, narrowedFont(type, text, place.width())};
}

void addGrid(QList<Words> &all, Spread *grid)
{
    const SpreadModel &model = *grid->spreadModel();
    const QHeaderView &header = *grid->horizontalHeader();
    const int height = header.height() / std::max(1, model.headerRows());
    for (int column = 1; column <= model.columns(); ++column) {
        if (grid->isColumnHidden(column))
            continue;
        for (int row = 0; row < model.headerRows(); ++row) {
            const auto &cell = model.header(FirstHeaderRow + row, column);
            QRect place(header.sectionViewportPosition(column), row * height, 0, height);
            for (int spanned = column; spanned < column + cell.span; ++spanned)
                place.setWidth(place.width() + header.sectionSize(spanned));
            QFont type = header.font();
            type.setBold(cell.bold);
            addCell(all, header.viewport(), cell.text, place.adjusted(6, 0, -6, 0), type);
        }
        for (int row = 1; row <= model.rows(); ++row) {
            const QRect cell = grid->visualRect(grid->model()->index(row - 1, column));
            if (cell.bottom() <= grid->viewport()->height()) // to others one scrolls
                addCell(all, grid->viewport(), model.text(row, column), cell.adjusted(2, 0, -2, 0),
                        grid->font());
        }
    }
}

QList<Words> wordsOn(QWidget *form)
{
    QList<Words> all;
    for (QWidget *each : form->findChildren<QWidget *>()) {
        if (!each->isVisible() || each->window() != form)
            continue;
        if (auto *label = qobject_cast<QLabel *>(each))
            all += {label, label->text(),
                    label->wordWrap() ? QSize(0, label->heightForWidth(label->width()))
                                      : label->sizeHint()};
        else if (auto *push = qobject_cast<QPushButton *>(each))
            all += {push, push->text(), push->QPushButton::sizeHint()};
        else if (auto *button = qobject_cast<QAbstractButton *>(each))
            all += {button, button->text(), button->sizeHint()};
        else if (auto *group = qobject_cast<QGroupBox *>(each))
            all += {group, group->title(),
                    QRect(8, 0, group->width() - 16, group->fontMetrics().height()), group->font()};
        else if (auto *combo = qobject_cast<QComboBox *>(each))
            addCombo(all, combo);
        else if (auto *field = qobject_cast<QLineEdit *>(each); field && !field->focusProxy())
            addField(all, field);
        else if (auto *grid = qobject_cast<Spread *>(each))
            addGrid(all, grid);
        else if (auto *tabs = qobject_cast<QTabBar *>(each)) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                all += {tabs, tabs->tabText(tab), tabs->tabRect(tab) & tabs->rect(), tabs->font()};
        }
    }
    all.removeIf([](const Words &words) { return words.text.trimmed().isEmpty(); });
    return all;
}

double luminance(QRgb color)
{
    const auto linear = [](int part) {
        const double share = part / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color))
           + 0.0722 * linear(qBlue(color));
}

double contrast(QRgb one, QRgb other)
{
    const auto [dark, bright] = std::minmax({luminance(one), luminance(other)});
    return (bright + 0.05) / (dark + 0.05);
}

/// How far what stands out most in a picture stands out from its commonest colour.
double contrastIn(const QImage &picture)
{
    QHash<QRgb, int> colors;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++colors[picture.pixel(x, y)];
    }
    const auto ground = std::max_element(colors.cbegin(), colors.cend());
    double most = 1;
    for (auto color = colors.cbegin(); color != colors.cend(); ++color)
        most = std::max(most, contrast(color.key(), ground.key()));
    return most;
}

} // namespace

QStringList cutOffIn(QWidget *form)
{
    QStringList faults;
    const QRect desktop = form->screen()->availableGeometry();
    if (!desktop.contains(form->geometry()))
        faults += u"%1 is %2 x %3 pixels, the desktop %4 x %5"_s.arg(form->objectName())
                      .arg(form->width())
                      .arg(form->height())
                      .arg(desktop.width())
                      .arg(desktop.height());
    for (const Words &words : wordsOn(form)) {
        const QSize room = words.place.size();
        if (words.need.width() > room.width() || words.need.height() > room.height())
            faults += u"%1 needs %2 x %3, has %4 x %5"_s.arg(words.named())
                          .arg(words.need.width())
                          .arg(words.need.height())
                          .arg(room.width())
                          .arg(room.height());
        const double points = QFontInfo(words.widget->font()).pointSizeF();
        if (points < LeastPoints)
            faults += u"%1 is %2 points high"_s.arg(words.named()).arg(points);
    }
    for (const QScrollArea *area : form->findChildren<QScrollArea *>()) {
        if (area->horizontalScrollBar()->maximum() > 0)
            faults += area->objectName() + u" has to be scrolled sideways"_s;
        if (area->verticalScrollBar()->maximum() > 0 && desktop.height() > SmallDesktop)
            faults += u"%1 has to be scrolled by %2"_s.arg(area->objectName())
                          .arg(area->verticalScrollBar()->maximum());
    }
    for (const Spread *grid : form->findChildren<Spread *>()) {
        const int rows = grid->viewport()->height() / grid->verticalHeader()->defaultSectionSize();
        if (grid->isVisible() && rows < LeastRows)
            faults += u"%1 shows %2 rows"_s.arg(grid->objectName()).arg(rows);
    }
    return faults;
}

QStringList faintIn(QWidget *form)
{
    QStringList faults;
    const QImage picture = form->grab().toImage();
    const double scale = picture.devicePixelRatio();
    for (const Words &words : wordsOn(form)) {
        if (!words.shown)
            continue;
        const QRect inner = words.place.adjusted(4, 4, -4, -4); // no frame
        const QRect pixels(words.widget->mapTo(form, inner.topLeft()) * scale,
                           inner.size() * scale);
        const double found = contrastIn(picture.copy(pixels));
        if (found < (words.widget->isEnabled() ? LeastContrast : LeastDisabled))
            faults += u"%1 stands out %2 to 1"_s.arg(words.named()).arg(found, 0, 'f', 1);
    }
    return faults;
}
