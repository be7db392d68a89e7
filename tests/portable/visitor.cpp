// SPDX-License-Identifier: MIT
// A visitor to the installed program, which itself has no tests: Qt loads this plugin where
// QT_QPA_GENERIC_PLUGINS names it. It saves a ticket, answers every box with OK, prints a Thai
// text, lists the box texts and the files in use on standard output, and closes the window.
#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QGenericPlugin>
#include <QIcon>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPainter>
#include <QPdfWriter>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void type(QWidget *field, const QList<int> &keys)
{
    field->setFocus();
    for (const int key : keys) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier,
                        key < 128 ? QString(QChar(key)) : u""_s);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &press);
    }
}

void saveTicket(QWidget *window)
{
    type(window->findChild<QWidget *>(u"Tnumber"_s),
         {Qt::Key_F1, '1', '2', '3', '-', '1', '0', '0', Qt::Key_Return});
    type(window->findChild<QWidget *>(u"Combo1"_s), {'-'}); // no customer
    window->findChild<QWidget *>(u"Form1"_s)
        ->findChild<QAbstractButton *>(u"lvButtons_H0"_s)
        ->click();
}

void visit()
{
    QTimer::singleShot(50, qApp, visit); // also while a box is open
    static bool hasBegun = false;
    QWidget *window = QApplication::activeWindow();
    if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
        std::puts(qUtf8Printable(u"box: "_s + box->text()));
        box->button(QMessageBox::Ok)->click();
    } else if (window && QApplication::focusWidget() && !hasBegun) {
        hasBegun = true;
        saveTicket(window);
        QPdfWriter paper(u"paper.pdf"_s);
        QPainter(&paper).drawText(1000, 1000, u"งวดนี้ น้ำ 123"_s);
#ifndef Q_OS_WIN // where it is part of the program
        if (QApplication::windowIcon().isNull())
            std::puts("box: no icon");
#endif
        if (QFile maps(u"/proc/self/maps"_s); maps.open(QIODevice::ReadOnly))
            std::puts(maps.readAll().constData());
        window->close();
    }
    std::fflush(stdout);
}

} // namespace

class VisitorPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "visitor.json")

public:
    QObject *create(const QString &, const QString &) override
    {
        visit();
        return new QObject;
    }
};

#include "visitor.moc"
