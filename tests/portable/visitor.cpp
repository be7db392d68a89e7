// SPDX-License-Identifier: MIT
// A visitor to the installed program, which itself knows no tests: the toolkit loads this plugin
// where QT_QPA_GENERIC_PLUGINS names it. It keys and saves one ticket, answers every box with OK,
// and tells on standard output what it saw. Then it ends the program as a person does.
#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QGenericPlugin>
#include <QGlyphRun>
#include <QIcon>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPainter>
#include <QPdfWriter>
#include <QRawFont>
#include <QTextLayout>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void tell(const QString &what)
{
    std::puts(qUtf8Printable(what));
    std::fflush(stdout);
}

void press(int key, const QString &text = {})
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
    }
}

void type(const QString &text)
{
    for (const QChar character : text)
        press(character.toUpper().unicode(), character);
}

const QString Thai = u"งวดนี้ น้ำ 123"_s;

/// Families that draw a Thai text with its marks, or "no letters" where one is missing.
QString fontOfThai()
{
    QTextLayout layout(Thai, QApplication::font());
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    QStringList families;
    const QList<QGlyphRun> runs = layout.glyphRuns();
    for (const QGlyphRun &run : runs)
        families += run.glyphIndexes().contains(0) ? u"no letters"_s : run.rawFont().familyName();
    families.removeDuplicates();
    families.sort();
    return families.join(u", "_s);
}

void printThai()
{
    QPdfWriter paper(u"paper.pdf"_s);
    QPainter(&paper).drawText(1000, 1000, Thai);
}

/// Files that the process has mapped, each once.
void tellFilesInUse()
{
    QFile maps(u"/proc/self/maps"_s);
    if (!maps.open(QIODevice::ReadOnly))
        return;
    QStringList files;
    const QList<QByteArray> lines = maps.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (const auto path = line.indexOf('/'); path >= 0)
            files += QString::fromUtf8(line.mid(path));
    }
    files.removeDuplicates();
    for (const QString &file : std::as_const(files))
        tell(u"file: "_s + file);
}

void keyOneTicket(QWidget *window)
{
    if (!window->isAncestorOf(QApplication::focusWidget())) { // the desktop has not given it keys
        QTimer::singleShot(20, window, [window] { keyOneTicket(window); });
        return;
    }
    tell(u"font: "_s + fontOfThai());
    tell(u"icon: "_s + QString::number(QApplication::windowIcon().availableSizes().size()));
    printThai();
    window->findChild<QWidget *>(u"Tnumber"_s)->setFocus();
    press(Qt::Key_F1);
    type(u"123-100"_s);
    press(Qt::Key_Return);
    window->findChild<QWidget *>(u"Combo1"_s)->setFocus();
    type(u"-"_s); // the customer who is nobody, the only one in an empty book
    window->findChild<QWidget *>(u"Form1"_s)
        ->findChild<QAbstractButton *>(u"lvButtons_H0"_s)
        ->click();
    tellFilesInUse();
    window->close();
}

class Visitor : public QObject
{
public:
    Visitor() { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() != QEvent::Show)
            return false;
        if (auto *box = qobject_cast<QMessageBox *>(object)) {
            tell(u"box: "_s + box->text());
            QTimer::singleShot(0, box, [box] { box->button(QMessageBox::Ok)->click(); });
        } else if (auto *window = qobject_cast<QWidget *>(object);
                   window && window->objectName() == u"MDIForm1"_s) {
            QTimer::singleShot(0, window, [window] { keyOneTicket(window); });
        }
        return false;
    }
};

} // namespace

class VisitorPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "visitor.json")

public:
    QObject *create(const QString &, const QString &) override { return new Visitor; }
};

#include "visitor.moc"
