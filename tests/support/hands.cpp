// SPDX-License-Identifier: MIT
#include "support/hands.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <utility>

bool Hands::focusComesTo(const QWidget *window)
{
    return QTest::qWaitFor([&] { return window->isAncestorOf(QApplication::focusWidget()); });
}

QWidget *Hands::focus()
{
    if (!QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }))
        qFatal("no control has the focus");
    return QApplication::focusWidget();
}

Hands::Hands()
{
    qApp->installEventFilter(this);
}

void Hands::type(const QString &text)
{
    for (const QChar character : text)
        QTest::sendKeyEvent(QTest::Click, focus(), Qt::Key(character.toUpper().unicode()),
                            character, Qt::NoModifier);
}

void Hands::press(Qt::Key key)
{
    QTest::keyClick(focus(), key);
}

void Hands::click(QWidget *control)
{
    QTest::mouseClick(control, Qt::LeftButton);
}

QStringList Hands::takeBoxes()
{
    m_looks.clear();
    return std::exchange(m_boxes, {});
}

bool Hands::eventFilter(QObject *object, QEvent *event)
{
    auto *dialog = qobject_cast<QDialog *>(object);
    if (!dialog || event->type() != QEvent::Show)
        return false;
    if (auto *box = qobject_cast<QMessageBox *>(object))
        QTimer::singleShot(0, box, [this, box] { answer(box); });
    else if (m_inDialog)
        QTimer::singleShot(0, dialog,
                           [dialog, work = std::exchange(m_inDialog, {})] { work(dialog); });
    return QObject::eventFilter(object, event);
}

void Hands::answer(QMessageBox *box)
{
    m_boxes += box->text();
    m_looks += QStringLiteral("%1, %2, %3")
                   .arg(box->windowTitle(), QString::number(box->icon()),
                        box->defaultButton()->text().remove(u'&'));
    emit boxShown(box);
    if (!box->isVisible()) // answered by whoever waited for it
        return;
    if (std::exchange(m_pressOk, false)) // with a key: a mouse would have to wait
        QTest::keyClick(box->button(QMessageBox::Ok), Qt::Key_Space);
    else
        QTest::keyClick(box, Qt::Key_Return);
}
