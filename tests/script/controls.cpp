// SPDX-License-Identifier: MIT
#include "script/player.h"
#include "widgets/spread.h"

#include <QTest>

namespace {

/// The caption of a grid or of a visible button.
QString captionOf(const QWidget *control)
{
    if (const auto *grid = qobject_cast<const Spread *>(control))
        return grid->text(FirstHeaderRow, 1).trimmed();
    const auto *button = qobject_cast<const QAbstractButton *>(control);
    return button && button->isVisible() ? button->text().remove(u'&').trimmed() : QString();
}

/// Where a click goes, in the window; outside of it if there is no such place.
QPoint placeIn(QWidget *control, const QString &place)
{
    const QStringList cell = place.split(u',');
    QRect rect = control->rect();
    if (auto *grid = qobject_cast<Spread *>(control)) {
        control = grid->viewport();
        rect = control->rect();
        if (place == u"below"_s)
            rect.setTop(rect.bottom() - 4);
        if (cell.size() == 2) {
            const auto index = grid->model()->index(cell[0].toInt() - 1, cell[1].toInt());
            grid->scrollTo(index);
            rect = index.isValid() ? grid->visualRect(index) : QRect(-9, -9, 1, 1);
        }
    } else if (const auto *tabs = qobject_cast<QTabBar *>(control)) {
        rect = tabs->tabRect(place.toInt());
    } else if (control->property("checkable").toBool()) {
        rect.setWidth(16); // the box beside its words
    }
    return control->mapTo(control->window(), rect.center());
}

} // namespace

void expect(const QString &expected, const QString &actual)
{
    ++comparisons;
    if (expected != actual)
        throw NotYet{u"  expected  "_s + expected + u"\n  actual    "_s + actual};
}

QWidget *findControl(QWidget *window, const QString &path)
{
    QWidget *found = window;
    for (const QString &name : path.split(u'.')) {
        const auto *page = found->findChild<QWidget *>(u"pageArea"_s);
        QWidgetList controls = page ? page->findChildren<QWidget *>() : QWidgetList();
        controls += found->findChildren<QWidget *>() << found;
        const auto at = std::ranges::find_if(controls, [&](const QWidget *each) {
            return each->objectName() == name || captionOf(each) == name;
        });
        if (at == controls.end())
            throw NotYet{u"no control %1 in %2"_s.arg(path, nameOf(window))};
        found = *at;
    }
    return found;
}

QString nameOf(const QWidget *control)
{
    while (control && QRegularExpression(u"^(qt_.*)?$"_s).match(control->objectName()).hasMatch())
        control = control->parentWidget();
    return control ? control->objectName() : u"none"_s;
}

QString read(const QWidget *control, const QString &part)
{
    const auto *grid = qobject_cast<const Spread *>(control);
    const auto *combo = qobject_cast<const QComboBox *>(control);
    const auto *tabs = qobject_cast<const QTabBar *>(control);
    const QStringList cell = part.split(u',');
    QStringList texts;
    if (grid && cell.size() == 2)
        return grid->text(cell[0].toInt(), cell[1].toInt()).trimmed();
    if (grid && (part == u"active"_s || part == u"rows"_s))
        return QString::number(part == u"rows"_s ? grid->rows() : grid->activeRow());
    for (int at = 0; combo && part == u"list"_s && at < combo->count(); ++at)
        texts += combo->itemText(at);
    for (int at = 0; tabs && at < tabs->count(); ++at)
        texts += at == tabs->currentIndex() ? u'[' + tabs->tabText(at).trimmed() + u']'
                                            : tabs->tabText(at).trimmed();
    if (!texts.isEmpty())
        return texts.join(u'|');
    if (part == u"base"_s)
        return control->palette().base().color().name();
    if (!part.isEmpty())
        return control->property(qPrintable(part)).toString();
    for (const char *property : {"value", "currentText", "text", "title", "plainText"})
        if (const QVariant text = control->property(property); text.isValid())
            return text.toString().trimmed();
    return control->isWindow() ? control->windowTitle() : QString();
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
    const QString name = key == u"<Enter>"_s ? u"Return"_s : key.mid(1, key.size() - 2);
    const QString last = name.section(u'+', -1); // such as the 5 of Alt+5, which is a text too
    const QString text = last == u"Space"_s ? u" "_s : last.size() == 1 ? last : QString();
    const QKeySequence keys(name, QKeySequence::PortableText);
    if (key.size() == 1)
        QTest::sendKeyEvent(QTest::Click, window, Qt::Key(key[0].toUpper().unicode()), key,
                            Qt::NoModifier);
    else if (keys.count() == 1 && keys[0].key() != Qt::Key_unknown)
        QTest::sendKeyEvent(QTest::Click, window, keys[0].key(), text, keys[0].keyboardModifiers());
    else
        qFatal("no key %s", qUtf8Printable(key));
}

void click(QWidget *control, const QString &place, const QString &how)
{
    scrollTo(control);
    QWindow *window = control->window()->windowHandle();
    const QPoint from = placeIn(control, place.section(u'>', 0, 0));
    const QPoint to = placeIn(control, place.section(u'>', -1));
    const QWidget *there = control->window()->childAt(to);
    if (!there || (there != control && !control->isAncestorOf(there)))
        throw NotYet{u"%1 is hidden or covered by %2"_s.arg(nameOf(control), nameOf(there))};
    const auto button = how == u"right"_s ? Qt::RightButton : Qt::LeftButton;
    if (how == u"double"_s)
        return QTest::mouseDClick(window, button, {}, from);
    QTest::mousePress(window, button, {}, from);
    if (from != to)
        QTest::mouseMove(window, to);
    QTest::mouseRelease(window, button, {}, to);
}
