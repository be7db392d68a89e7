// SPDX-License-Identifier: MIT
#include "script/controls.h"

#include "widgets/spread.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QScrollArea>
#include <QTabBar>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

QWidget *findIn(QWidget *parent, const QString &name)
{
    if (auto *page = parent->findChild<QWidget *>(u"pageArea"_s)) {
        if (QWidget *found = findIn(page, name))
            return found;
    }
    if (auto *named = parent->findChild<QWidget *>(name))
        return named;
    for (auto *button : parent->findChildren<QAbstractButton *>()) {
        if (button->isVisible() && button->text().remove(u'&').trimmed() == name)
            return button;
    }
    return parent->objectName() == name ? parent : nullptr;
}

QString textOf(const QWidget *control)
{
    if (const auto *tabs = qobject_cast<const QTabBar *>(control)) {
        QStringList captions;
        for (int tab = 0; tab < tabs->count(); ++tab) {
            const QString caption = tabs->tabText(tab).trimmed();
            captions += tab == tabs->currentIndex() ? u'[' + caption + u']' : caption;
        }
        return captions.join(u'|');
    }
    if (const auto *bar = qobject_cast<const QProgressBar *>(control))
        return QString::number(bar->value());
    for (const char *property : {"currentText", "text", "title", "plainText"}) {
        if (const QVariant text = control->property(property); text.isValid())
            return text.toString();
    }
    return control->isWindow() ? control->windowTitle() : QString();
}

/// Two numbers such as "-999,2".
std::optional<std::pair<int, int>> cellOf(const QString &text)
{
    const QStringList numbers = text.split(u',');
    if (numbers.size() != 2)
        return std::nullopt;
    return std::pair(numbers[0].toInt(), numbers[1].toInt());
}

/// Where a click goes, in the window; outside of it if there is no such place.
QPoint placeIn(QWidget *control, const QString &place)
{
    const auto *button = qobject_cast<QAbstractButton *>(control);
    QPoint at = button && button->isCheckable() ? QPoint(8, control->height() / 2)
                                                : control->rect().center();
    if (auto *grid = qobject_cast<Spread *>(control)) {
        QRect rect = grid->viewport()->rect();
        if (const auto cell = cellOf(place)) {
            const auto index = grid->model()->index(cell->first - 1, cell->second);
            grid->scrollTo(index);
            rect = index.isValid() ? grid->visualRect(index) : QRect(-9, -9, 1, 1);
        } else if (place == u"below"_s) {
            rect.setTop(rect.bottom() - 4);
        }
        at = grid->viewport()->mapTo(grid, rect.center());
    } else if (const auto *tabs = qobject_cast<QTabBar *>(control)) {
        at = tabs->tabRect(place.toInt()).center();
    }
    return control->mapTo(control->window(), at);
}

} // namespace

void expect(const QString &expected, const QString &actual)
{
    if (expected != actual)
        throw NotYet{u"  expected  "_s + expected + u"\n  actual    "_s + actual};
}

QWidget *findControl(QWidget *window, const QString &name)
{
    QWidget *found = window;
    for (const QString &part : name.split(u'.')) {
        found = found ? findIn(found, part) : nullptr;
        if (!found)
            throw NotYet{u"no control %1 in %2"_s.arg(name, nameOf(window))};
    }
    return found;
}

QString nameOf(const QWidget *control)
{
    while (control
           && (control->objectName().isEmpty() || control->objectName().startsWith(u"qt_"_s)))
        control = control->parentWidget();
    return control ? control->objectName() : u"none"_s;
}

QString read(const QWidget *control, const QString &part)
{
    const auto *combo = qobject_cast<const QComboBox *>(control);
    if (const auto *grid = qobject_cast<const Spread *>(control)) {
        if (const auto cell = cellOf(part))
            return grid->text(cell->first, cell->second).trimmed();
        if (part == u"active"_s || part == u"rows"_s)
            return QString::number(part == u"active"_s ? grid->activeRow() : grid->rows());
    }
    if (combo && part == u"list"_s) {
        QStringList entries;
        for (int at = 0; at < combo->count(); ++at)
            entries += combo->itemText(at);
        return entries.join(u'|');
    }
    if (part == u"base"_s)
        return control->palette().base().color().name();
    return part.isEmpty() ? textOf(control).trimmed()
                          : control->property(qPrintable(part)).toString();
}

QStringList gridRows(const QWidget *control, const QStringList &columns)
{
    const auto *grid = qobject_cast<const Spread *>(control);
    QStringList rows;
    for (int row = 1; grid && row <= grid->rows(); ++row) {
        QStringList cells;
        bool hot = false;
        for (int column = 1; column <= grid->spreadModel()->columns(); ++column) {
            if (columns.isEmpty() ? !grid->isColumnHidden(column)
                                  : columns.contains(QString::number(column)))
                cells += grid->text(row, column).trimmed();
            hot = hot || grid->color(row, column).isValid();
        }
        rows += cells.join(u'|') + (hot ? u" hot"_s : QString());
    }
    return rows;
}

void scrollTo(QWidget *control)
{
    auto *area = control->window()->findChild<QScrollArea *>();
    if (area && area->isAncestorOf(control))
        area->ensureWidgetVisible(control);
}

void pressKey(const QString &key)
{
    const QWidget *popup = QApplication::activePopupWidget();
    QWindow *window = popup ? popup->windowHandle() : QGuiApplication::focusWindow();
    if (key.size() == 1) {
        QTest::sendKeyEvent(QTest::Click, window, Qt::Key(key[0].toUpper().unicode()), key,
                            Qt::NoModifier);
        return;
    }
    const QString name = key == u"<Enter>"_s ? u"Return"_s : key.sliced(1).chopped(1);
    const QKeySequence keys(name, QKeySequence::PortableText);
    if (keys.count() != 1 || keys[0].key() == Qt::Key_unknown)
        qFatal("no key %s", qUtf8Printable(key));
    QTest::sendKeyEvent(QTest::Click, window, keys[0].key(),
                        keys[0].key() == Qt::Key_Space ? u" "_s : QString(),
                        keys[0].keyboardModifiers());
}

void click(QWidget *control, const QString &place, const QString &how)
{
    QWindow *window = control->window()->windowHandle();
    scrollTo(control);
    QList<QPoint> places;
    for (const QString &each : place.split(u'>')) {
        places += placeIn(control, each);
        const QWidget *there = control->window()->childAt(places.last());
        if (!there || (there != control && !control->isAncestorOf(there)))
            throw NotYet{u"%1 cannot be clicked there: it is hidden or covered by %2"_s.arg(
                nameOf(control), nameOf(there))};
    }
    const auto button = how == u"right"_s ? Qt::RightButton : Qt::LeftButton;
    if (how == u"double"_s) {
        QTest::mouseDClick(window, button, {}, places.first());
    } else if (places.size() == 1) {
        QTest::mouseClick(window, button, {}, places.first());
    } else {
        QTest::mousePress(window, button, {}, places.first());
        QTest::mouseMove(window, places.last());
        QTest::mouseRelease(window, button, {}, places.last());
    }
}
