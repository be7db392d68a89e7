// SPDX-License-Identifier: MIT
#include "script/controls.h"

#include "widgets/spread.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

QString plain(const QString &caption)
{
    return QString(caption).remove(u'&').trimmed();
}

QWidget *findIn(QWidget *parent, const QString &name)
{
    if (parent->objectName() == name)
        return parent;
    if (auto *named = parent->findChild<QWidget *>(name))
        return named;
    for (auto *button : parent->findChildren<QAbstractButton *>()) {
        if (button->isVisible() && plain(button->text()) == name)
            return button;
    }
    return nullptr;
}

QString tabsOf(const QTabBar &tabs)
{
    QStringList captions;
    for (int tab = 0; tab < tabs.count(); ++tab) {
        const QString caption = tabs.tabText(tab).trimmed();
        captions += tab == tabs.currentIndex() ? u'[' + caption + u']' : caption;
    }
    return captions.join(u'|');
}

QString textOf(const QWidget *control)
{
    if (const auto *tabs = qobject_cast<const QTabBar *>(control))
        return tabsOf(*tabs);
    if (const auto *combo = qobject_cast<const QComboBox *>(control))
        return combo->currentText();
    if (const auto *bar = qobject_cast<const QProgressBar *>(control))
        return QString::number(bar->value());
    if (control->isWindow())
        return control->windowTitle();
    for (const char *property : {"text", "title", "plainText"}) {
        if (const QVariant text = control->property(property); text.isValid())
            return text.toString();
    }
    return {};
}

QString entriesOf(const QComboBox &combo)
{
    QStringList entries;
    for (int at = 0; at < combo.count(); ++at)
        entries += combo.itemText(at);
    return entries.join(u'|');
}

/// Place of a click in @p control, in whose coordinates it is given; invalid if there is none.
std::optional<QPoint> placeIn(QWidget *control, const QString &place)
{
    static const QRegularExpression cell(u"^(\\d+),(\\d+)$"_s);
    if (const auto match = cell.match(place); match.hasMatch()) {
        auto *grid = qobject_cast<Spread *>(control);
        const auto index =
            grid->model()->index(match.captured(1).toInt() - 1, match.captured(2).toInt());
        grid->scrollTo(index);
        const QRect rect = grid->visualRect(index);
        return rect.isEmpty() ? std::nullopt
                              : std::optional(grid->viewport()->mapTo(grid, rect.center()));
    }
    if (place == u"below"_s) {
        auto *grid = qobject_cast<Spread *>(control);
        const QRect rows = grid->viewport()->rect();
        return grid->viewport()->mapTo(grid, QPoint(rows.center().x(), rows.bottom() - 2));
    }
    if (const auto *tabs = qobject_cast<QTabBar *>(control))
        return tabs->tabRect(place.toInt()).center();
    const auto *button = qobject_cast<QAbstractButton *>(control);
    if (button && button->isCheckable())
        return QPoint(8, control->height() / 2);
    return control->rect().center();
}

} // namespace

QWidget *findControl(QWidget *window, const QString &name)
{
    QWidget *found = window;
    for (const QString &part : name.split(u'.')) {
        auto *page = found ? found->findChild<QWidget *>(u"pageArea"_s) : nullptr;
        QWidget *onPage = page ? findIn(page, part) : nullptr;
        found = onPage ? onPage : found ? findIn(found, part) : nullptr;
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
    static const QRegularExpression cell(u"^(-?\\d+),(\\d+)$"_s);
    const auto *grid = qobject_cast<const Spread *>(control);
    if (const auto match = cell.match(part); grid && match.hasMatch())
        return grid->text(match.captured(1).toInt(), match.captured(2).toInt()).trimmed();
    if (grid && part == u"active"_s)
        return QString::number(grid->activeRow());
    if (grid && part == u"rows"_s)
        return QString::number(grid->rows());
    if (const auto *combo = qobject_cast<const QComboBox *>(control); combo && part == u"list"_s)
        return entriesOf(*combo);
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
            const bool asked = columns.isEmpty() ? !grid->isColumnHidden(column)
                                                 : columns.contains(QString::number(column));
            if (asked)
                cells += grid->text(row, column).trimmed();
            hot = hot || grid->color(row, column).isValid();
        }
        rows += cells.join(u'|') + (hot ? u" hot"_s : QString());
    }
    return rows;
}

QString notReady(const QWidget *window)
{
    if (!window)
        return u"no window is open"_s;
    if (QApplication::activeWindow() != window && !QApplication::activePopupWidget())
        return u"the window %1 is not active"_s.arg(window->objectName());
    return {};
}

void pressKey(const QString &key)
{
    QWindow *window = QGuiApplication::focusWindow();
    if (key.size() == 1) {
        QTest::sendKeyEvent(QTest::Click, window, Qt::Key(key[0].toUpper().unicode()), key,
                            Qt::NoModifier);
        return;
    }
    QString name = key.sliced(1).chopped(1);
    name.replace(QRegularExpression(u"^Enter$"_s), u"Return"_s);
    const QKeySequence keys(name, QKeySequence::PortableText);
    if (keys.count() != 1 || keys[0].key() == Qt::Key_unknown)
        qFatal("no key %s", qUtf8Printable(key));
    const QKeyCombination pressed = keys[0];
    const QString text = pressed.key() == Qt::Key_Space ? u" "_s : QString();
    QTest::sendKeyEvent(QTest::Click, window, pressed.key(), text, pressed.keyboardModifiers());
}

QString click(QWidget *control, const QString &place, const QString &how)
{
    QWindow *window = control->window()->windowHandle();
    QList<QPoint> places;
    for (const QString &each : place.split(u'>')) {
        const auto in = placeIn(control, each);
        const QPoint at = in ? control->mapTo(control->window(), *in) : QPoint(-1, -1);
        QWidget *there = control->window()->childAt(at);
        if (!there || (there != control && !control->isAncestorOf(there)))
            return u"%1 cannot be clicked there: it is hidden or covered by %2"_s.arg(
                nameOf(control), nameOf(there));
        places += at;
    }
    const Qt::MouseButton button = how == u"right"_s ? Qt::RightButton : Qt::LeftButton;
    if (how == u"double"_s) {
        QTest::mouseDClick(window, Qt::LeftButton, {}, places.first());
    } else if (places.size() > 1) {
        QTest::mousePress(window, button, {}, places.first());
        QTest::mouseMove(window, places.last());
        QTest::mouseRelease(window, button, {}, places.last());
    } else {
        QTest::mouseClick(window, button, {}, places.first());
    }
    return {};
}
