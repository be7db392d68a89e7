// SPDX-License-Identifier: MIT
// What a script cannot do: halves of double clicks on a box, and a log-off of the desktop.
#include "desktop/application.h"
#include "desktop/msgbox.h"
#include "desktop/programfolder.h"
#include "desktop/singleinstance.h"
#include "ledger/emptyledger.h"
#include "ledger/ledger.h"
#include "program.h"
#include "support/hands.h"

#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

using namespace Qt::StringLiterals;

class ShellTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void boxTakesNoHalfOfADoubleClick();
    void logOffEndsTheWorkBehindABox();

private:
    QStringList bookFiles() const
    {
        return QDir(m_folder.filePath(u"data"_s)).entryList(QDir::Files);
    }

    QTemporaryDir m_folder;
    Hands m_hands;
    std::unique_ptr<MDIForm1> m_window;
};

void ShellTest::initTestCase()
{
    QVERIFY(QDir(m_folder.path()).mkdir(u"data"_s));
    makeEmptyLedger(m_folder.filePath(u"data/ztkdata.ZDB"_s));
    setProgramFolder(m_folder.path());
    m_window = startProgram();
    QVERIFY(m_window && QTest::qWaitForWindowActive(m_window.get()));
}

void ShellTest::boxTakesNoHalfOfADoubleClick()
{
    const auto restore = qScopeGuard([interval = QApplication::doubleClickInterval()] {
        QApplication::setDoubleClickInterval(interval);
    });
    bool early = true;
    connect(&m_hands, &Hands::boxShown, m_window.get(), [&](QWidget *window) {
        auto *box = qobject_cast<QMessageBox *>(window);
        QWidget *ok = box->button(QMessageBox::Ok);
        QApplication::setDoubleClickInterval(early ? 60'000 : 0);
        if (early)
            QTest::mouseClick(ok, Qt::LeftButton); // before the box is painted
        QVERIFY(QTest::qWaitForWindowActive(box));
        QTest::qWait(50);
        if (early) {
            QTest::mouseClick(ok, Qt::LeftButton);
        } else { // a second half that has waited behind slow work
            QTest::mouseDClick(ok, Qt::LeftButton);
            QTest::mouseRelease(ok, Qt::LeftButton);
        }
        QVERIFY(box->isVisible());
        QVERIFY(box->defaultButton()->hasFocus());
        QApplication::setDoubleClickInterval(0);
        QTest::mouseClick(ok, Qt::LeftButton);
        QVERIFY(!box->isVisible());
    });
    for (const bool each : {true, false}) {
        early = each;
        QVERIFY(ask(u"?"_s, {}, BoxIcon::Question, BoxAnswer::Cancel));
    }
    disconnect(&m_hands, nullptr, m_window.get(), nullptr);
    m_hands.takeBoxes();
}

/// The desktop ends the program while a box says that a customer is added: the list behind it is
/// not read again from a book that is closed.
void ShellTest::logOffEndsTheWorkBehindABox()
{
    m_window.reset();
    CloseLedger();
    leaveOnlyInstance(); // all of which another program will have
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
#ifdef Q_OS_WIN // its log-off reaches programs of its own desktop only
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"windows"_s);
    program.setProcessEnvironment(environment);
#endif
    program.start(QCoreApplication::applicationFilePath(), {u"log-off"_s, m_folder.path()});
    QVERIFY(program.waitForFinished(60'000));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    QCOMPARE(bookFiles(), QStringList(u"ztkdata.ZDB"_s));
}

namespace {

/// Has the desktop ask whether it may log off, where a program can do that; else the window is
/// asked to close. True if it may.
bool logOff(MDIForm1 &window)
{
#ifdef Q_OS_WIN
    const auto handle = HWND(window.winId());
    const bool agreed = SendMessageW(handle, WM_QUERYENDSESSION, 0, LPARAM(ENDSESSION_LOGOFF));
    SendMessageW(handle, WM_ENDSESSION, agreed, LPARAM(ENDSESSION_LOGOFF)); // what came of it
    return agreed;
#else
    return window.close();
#endif
}

/// The process of logOffEndsTheWorkBehindABox(). It does not come back if all is well.
int logOffInABox(const QString &folder)
{
    setProgramFolder(folder);
    const auto window = startProgram();
    if (!window || !QTest::qWaitForWindowActive(window.get()))
        return 2;
    window->openPage(1);
    for (const char *field : {"Tname", "Tber"})
        window->page()->findChild<QLineEdit *>(QLatin1String(field))->setText(u"1"_s);
    Hands hands;
    int boxes = 0;
    QObject::connect(&hands, &Hands::boxShown, window.get(), [&] {
        ++boxes; // the question before he is added, what tells that he is, two questions of the end
        if (boxes == 2) {
            if (logOff(*window) || boxes != 3)
                std::_Exit(3);
            logOff(*window);
        } else if (boxes != 3) {
            hands.answerNextWithOk();
        }
    });
    Hands::click(window->page()->findChild<QPushButton *>(u"lvButtons_H0"_s));
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    static const QTemporaryDir ownPlace; // a running program is no second copy of this one
    qputenv("TMPDIR", ownPlace.path().toUtf8());
    const Application application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "log-off") == 0)
        return logOffInABox(QString::fromLocal8Bit(argv[2]));
    ShellTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_shell.moc"
