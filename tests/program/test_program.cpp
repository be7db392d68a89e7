// SPDX-License-Identifier: MIT
// What scripts cannot do or perceive: scan codes, the region of the machine, parts of double clicks,
// a log-off, a Ledger that others use, ink, difficult files, sound.
#include "desktop/application.h"
#include "desktop/keycodes.h"
#include "desktop/programend.h"
#include "desktop/programfolder.h"
#include "desktop/region.h"
#include "desktop/savefile.h"
#include "desktop/singleinstance.h"
#include "ledger/emptyledger.h"
#include "ledger/ledger.h"
#include "paper/pageview.h"
#include "paper/pdfexport.h"
#include "paper/xlswriter.h"
#include "program.h"
#include "runtime/runtimeerror.h"
#include "support/boxscript.h"
#include "support/otherreaders.h"
#include "support/outcome.h"
#include "support/testledger.h"
#include "widgets/spreadmodel.h"

#include <QBitmap>
#include <QDialog>
#include <QDir>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QMutex>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <SDL_mixer.h>
#include <cstdlib>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

/// Returns samples without silence, in which a search would take long.
QByteArray soundIn(QByteArray samples)
{
    samples.removeIf([](char byte) { return byte == 0; });
    return samples;
}

QStringList readFile(const QByteArray &bytes)
{
    const QTemporaryDir folder;
    saveFile(folder.filePath(u"file"_s), bytes);
    return readByOthers(folder.filePath(u"file"_s));
}

constexpr QFile::Permissions OfOthers{QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther
                                      | QFile::WriteOther};

bool isPrivate(const QString &path)
{
    return QFile::exists(path) && (QFile::permissions(path) & OfOthers) == 0;
}

PageItem itemOf(const QString &text, const TextStyle &style,
                ReportControl::Kind kind = ReportControl::Text)
{
    return {ReportSection::Detail, u"t"_s, {1000, 1000, 4000, 400}, kind, style, text};
}

/// Returns the second page of a report as on screen, with one pixel for ten twips.
QImage shown(const ReportPage &page)
{
    PageView view;
    view.resize(1260, 400);
    view.show();
    view.setReport({u"test"_s, false, {{}, page}});
    view.goToPage(2);
    view.grab(); // must not be kept for the other zoom
    view.setZoom(150);
    const int left = (view.viewport()->width() - 1191) / 2;
    return view.viewport()->grab({left, 14, 1189, 300}).toImage();
}

/// Asks the window as a log-off of the desktop does. Returns true if it agrees.
bool logOff(MDIForm1 &window)
{
#ifdef Q_OS_WIN
    const auto handle = HWND(window.winId());
    const bool agreed = SendMessageW(handle, WM_QUERYENDSESSION, 0, LPARAM(ENDSESSION_LOGOFF));
    SendMessageW(handle, WM_ENDSESSION, agreed, LPARAM(ENDSESSION_LOGOFF)); // the decision
    return agreed;
#else
    return window.close();
#endif
}

/// Logs off while a box says that a customer has been added: the list behind it must not be read
/// again from the closed Ledger. Ends the process.
int endByLogOff()
{
    const TestLedger ledger;
    CloseLedger();
    setProgramEnder(
        [&](int status) { std::_Exit(QFile::exists(ledger.path() + u"-wal"_s) ? 1 : status); });
    const auto window = startProgram();
    window->openPage(1);
    for (const char *field : {"Tname", "Tber"})
        window->page()->findChild<QLineEdit *>(QLatin1String(field))->setText(u"1"_s);
    int boxes = 0;
    setBoxShower([&](const Box &) { // add him? added, end? (no), end? (yes)
        if (++boxes == 2) {
            QDialog box;
            box.setModal(true);
            box.show();
            if (logOff(*window) || boxes != 3)
                qFatal("the log-off cannot be cancelled");
            logOff(*window);
        }
        return boxes == 3 ? BoxAnswer::Cancel : BoxAnswer::Ok;
    });
    window->page()->findChild<QAbstractButton *>(u"lvButtons_H0"_s)->click();
    qFatal("the log-off does not end the program");
}

/// What has been played, collected in SDL's own thread.
QByteArray played;
QMutex playedLock;

void keepSamples(void *, Uint8 *samples, int size)
{
    const QMutexLocker lock(&playedLock);
    played.append(reinterpret_cast<const char *>(samples), size);
}

} // namespace

class ProgramTest : public QObject
{
    Q_OBJECT

private slots:
    void keysAreKnownByTheirPlace()
    {
        // Scan codes and symbols of ! _ - (keypad) 7 (keypad) Home (keypad) Ctrl F12 A, and unknown ones.
        using Keys = QList<std::pair<quint32, quint32>>;
#ifdef Q_OS_WIN
        const Keys keys{{2, '1'}, {12, 189}, {74, 109}, {71, 103}, {71, 36},
                        {29, 17}, {88, 123}, {30, 'A'}, {}};
#else
        const Keys keys{{10, '!'},    {20, '_'},    {82, 0xffad},
                        {79, 0xffb7}, {79, 0xff95}, {105, 0xffe4},
                        {96, 0xffc9}, {38, 'a'},    {}};
#endif
        QList<int> codes;
        for (const auto &[scanCode, symbol] : keys)
            codes += keyCode(QKeyEvent(QEvent::KeyPress, Qt::Key_1, {}, scanCode, symbol, 0));
        QCOMPARE(codes, QList<int>({49, 189, 109, 103, 36, 17, 123, 0, 49}));
    }

    void datesAreThoseOfTheRegion()
    {
        QStringList dates;
#ifdef Q_OS_WIN
        for (const wchar_t *calendar : {L"7", L"1"}) { // Thai, then Gregorian
            SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_ICALENDARTYPE, calendar);
            dates += shortDate({2026, 11, 22}).right(4);
        }
        QCOMPARE(dates, QStringList({u"2569"_s, u"2026"_s}));
#else
        qunsetenv("LC_ALL");
        for (const auto &[variable, region] :
             {std::pair("LANG", "en_US"), {"LC_TIME", "en_GB"}, {"LC_ALL", "th_TH"}}) {
            qputenv(variable, region);
            dates += shortDate({2026, 11, 22});
        }
        QCOMPARE(dates, QStringList({u"11/22/2026"_s, u"22/11/2026"_s, u"22/11/2569"_s}));
#endif
    }

    void gridTellsItsView()
    {
        SpreadModel grid;
        QTableView view;
        view.setModel(&grid);
        grid.setup(2, 3);
        for (const QString &number : {u"12"_s, u"12"_s, u"012"_s, u"123"_s}) {
            grid.insertRow(1);
            grid.setText(1, 1, number);
        }
        QCOMPARE(view.verticalHeader()->count(), 4);
        QCOMPARE(grid.searchColumn(1, u"12"_s), 3); // the first, and no part of another
        grid.removeRow(1);
        QCOMPARE(view.verticalHeader()->count(), 3);
        grid.setRows(1);
        QCOMPARE(view.verticalHeader()->count(), 1);
    }

    void boxIgnoresPartsOfDoubleClicks()
    {
        for (const bool early : {true, false}) {
            QApplication::setDoubleClickInterval(early ? 60'000 : 0);
            QTimer::singleShot(0, this, [early] {
                auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
                QWidget *ok = box->button(QMessageBox::Ok);
                QVERIFY(QTest::qWaitForWindowExposed(box));
                QTest::qWait(50);
                if (early)
                    QTest::mouseClick(ok, Qt::LeftButton);
                else // the first click went to another window
                    QTest::mouseDClick(ok, Qt::LeftButton);
                QTest::mouseRelease(ok, Qt::LeftButton);
                QVERIFY(box->isVisible() && box->defaultButton()->hasFocus());
                QApplication::setDoubleClickInterval(0);
                QTest::mouseClick(ok, Qt::LeftButton);
            });
            QVERIFY(ask(u"?"_s, {}, BoxIcon::Question, BoxAnswer::Cancel));
        }
    }

    /// Such as a name with a semicolon in it.
    void textIsNoSecondStatement()
    {
        const TestLedger ledger;
        QVERIFY(!errorOf([&] { ledger.run(u"SELECT 1; DELETE FROM tblMember"_s); }).isEmpty());
    }

    void valuesAreNotKeptForTheNextCall()
    {
        const TestLedger ledger;
        const QString statement = u"DELETE FROM tblMember WHERE MPK = ? AND Mname = ?"_s;
        ledger.run(statement, {1, u"-"_s});
        for (const QVariantList &values : {QVariantList{}, {0}, {0, u"-"_s, 0}})
            QVERIFY(!errorOf([&] { ledger.run(statement, values); }).isEmpty());
        QCOMPARE(ledger.run(u"SELECT Mname FROM tblMember"_s), QStringList(u"-"_s));
    }

    /// Whatever the umask. A Ledger that older versions made for others to read is tightened.
    void filesAreTheirOwnersAlone()
    {
#ifdef Q_OS_WIN
        QSKIP("a file has the permissions of its folder there");
#endif
        const TestLedger ledger;
        makeEmptyLedger(ledger.path() + u".new"_s);
        QVERIFY(isPrivate(ledger.path() + u".new"_s));
        CloseLedger();
        QFile::setPermissions(ledger.path(), QFile::permissions(ledger.path()) | OfOthers);
        ConnectLedger();
        QVERIFY(isPrivate(ledger.path()));
        QVERIFY(isPrivate(ledger.path() + u"-wal"_s));
    }

    /// Anything else with the name of the lock file is not used, even if it could be locked.
    void onlyAnEmptyFileIsALockFile()
    {
#ifdef Q_OS_WIN
        QSKIP("the lock is no file there");
#else
        const QTemporaryDir folder;
        const auto restore =
            qScopeGuard([before = qgetenv("TMPDIR")] { qputenv("TMPDIR", before); });
        qputenv("TMPDIR", folder.path().toUtf8());
        const QString lock = folder.filePath(u"mirakla-desk.lock"_s);
        const QByteArray name = QFile::encodeName(lock);
        const QByteArray other = QFile::encodeName(folder.filePath(u"other"_s));
        QVERIFY(saveFile(QFile::decodeName(other), {}));
        const auto take = [&] {
            const int file = open(name, O_RDONLY | O_NONBLOCK);
            return flock(file, LOCK_EX) == 0 ? file : -1;
        };
        const std::array<std::function<bool()>, 5> makers{
            [&] { return symlink(other, name) == 0; }, [&] { return link(other, name) == 0; },
            [&] { return mkfifo(name, S_IRWXU) == 0; }, [&] { return mkdir(name, S_IRWXU) == 0; },
            [&] { return saveFile(lock, "not empty"); }};
        for (const auto &makeSomething : makers) {
            QVERIFY(makeSomething());
            const int taken = take();
            QVERIFY(becomeOnlyInstance() && !hasInstanceLock());
            close(taken);
            QCOMPARE(std::remove(name), 0);
        }
        QVERIFY(becomeOnlyInstance() && hasInstanceLock());
        leaveOnlyInstance();
        const int taken = take();
        QVERIFY(!becomeOnlyInstance());
        close(taken);
        qputenv("TMPDIR", name); // no folder
        QVERIFY(becomeOnlyInstance() && !hasInstanceLock());
#endif
    }

    /// As by a program that synchronizes folders. It is noticed by the next write or at the end.
    void replacedLedgerIsRescued()
    {
#ifdef Q_OS_WIN
        QSKIP("Windows does not let an open file be replaced");
#endif
        for (const bool atTheEnd : {false, true}) {
            const TestLedger ledger;
            ledger.run(u"UPDATE tblMember SET Mname = 'Lek'"_s);
            QVERIFY(QFile::rename(ledger.path(), ledger.path() + u".away"_s));
            if (atTheEnd)
                QVERIFY(QFile::copy(ledger.path() + u".away"_s, ledger.path()));
            const BoxScript boxes;
            QString report;
            if (!atTheEnd)
                report =
                    errorOf([&] { resumeNext([&] { ledger.run(u"DELETE FROM tblMember"_s); }); });
            QCOMPARE(endStatus(CloseLedger).has_value(), atTheEnd);
            report += boxes.texts().join(u' ');
            QVERIFY2(report.contains(u"ztkdata-rescued-"_s), qPrintable(report));
            QVERIFY(QFile::exists(ledger.path() + u"-wal"_s)); // it may belong to the other file
            QVERIFY(isPrivate(report.section(u' ', -1)));
            const auto rescued = Connection::open(report.section(u' ', -1));
            QCOMPARE(rescued->run(u"SELECT Mname FROM tblMember"_s).rows[0][0], u"Lek"_s);
            QCOMPARE(rescued->run(u"PRAGMA journal_mode"_s).rows[0][0], u"wal"_s);
        }
    }

    void inkStaysInItsControl()
    {
        const QString amount = QString(60, u'8') + u'1';
        for (const auto &[item, left, right] :
             {std::tuple(itemOf(u"H"_s, {12}), 112, 124),
              {itemOf(u"H"_s, {12, Qt::AlignRight}), 474, 486},
              {itemOf(u"H"_s, {12, Qt::AlignHCenter}), 293, 305},
              {itemOf(QString(129, u'H'), {12}), 112, 499},
              {itemOf(amount, {12, Qt::AlignRight, false, true}), 110, 487},
              {itemOf({}, {}, ReportControl::Line), 100, 499},
              {itemOf({}, {}, ReportControl::Frame), 100, 500}}) {
            const QBitmap dark =
                QBitmap::fromImage(shown({{}, {item}}), Qt::MonoOnly | Qt::ThresholdDither);
            const QRect ink = QRegion(dark).boundingRect();
            QCOMPARE(ink.left(),
                     qBound(left - 3, ink.left(), left + 3)); // versions of fonts differ
            QCOMPARE(ink.right(), qBound(right - 3, ink.right(), right + 3));
        }
        const QImage ruled =
            shown({{{1070, 3000, 1070, 500}}, {itemOf(u"H"_s, {.points = 12, .onWhite = true})}});
        QCOMPARE(qGray(ruled.pixel(107, 120)), 255);
        QVERIFY(qGray(ruled.pixel(107, 60)) < 200);
    }

    /// It has texts in several records, and a container whose list of tables overflows the header.
    void longSheetIsComplete()
    {
        Sheet sheet{u"s"_s, {1000, 1000}, {}, 0, false, 300};
        QStringList expected;
        for (int row = 0; row < 32767; ++row) {
            const QString text = u"%1&😀"_s.arg(row) + QString(row == 9 ? 4000 : 130, u'ก');
            sheet.cells += {row, 0, SheetCell::Text, text};
            sheet.cells += {row, 1, SheetCell::Amount, {}, double(row - 1)};
            expected +=
                u"%1: 1 \"%2\", 2 %3.00 #,##0"_s.arg(row + 1).arg(text.left(4000)).arg(row - 1);
        }
        QCOMPARE(readFile(xlsOf(sheet)).last(32767), expected);
    }

    void documentKeepsEveryLetter()
    {
        ReportPages report{u"test"_s, true, {{}}};
        QStringList expected;
        for (const QString &text :
             {u"ผู้ กตัญญู ปั๊ม ศิริ ฐูปฏู ป่า ฝ้าย เพื่อน กำลัง"_s, u"ลุงพิษณุ ศักดิ์สิทธิ์ ก๋วยเตี๋ยว ซุ้ม โต๊ด"_s,
              u"012 -20,000 John <b>&amp;"_s}) {
            for (const bool bold : {false, true}) {
                PageItem item = itemOf(text, {11, Qt::AlignRight, bold});
                item.box.moveTop(500 + 500 * int(expected.size()));
                report.pages[0].items += item;
                expected += u"1: "_s + text;
            }
        }
        QCOMPARE(readFile(pdfOf(report)).filter(u"1: "_s), expected);
    }

    void keysAreSpoken()
    {
        const TestLedger ledger;
        CloseLedger();
        copyProgramData(QCoreApplication::applicationDirPath(), programFolder());
        qputenv("SDL_AUDIODRIVER", "disk"); // a device on every machine
        qputenv("SDL_DISKAUDIOFILE", "sound");
        qputenv("SDL_DISKAUDIODELAY", "1"); // milliseconds for each buffer: ten times as fast
        QDir::setCurrent(programFolder());  // where the sound goes, which is read as it is played
        Mix_SetPostMix(keepSamples, nullptr);
        auto window = startProgram();
        auto *voice = window->findChild<QAbstractButton *>(u"C01"_s);
        const auto press = [&](const QString &keys) {
            for (const QString &key : keys.split(u' '))
                QTest::keyClick(window->findChild<QLineEdit *>(u"Tnumber"_s),
                                QKeySequence(key)[0].key());
        };
        qsizetype end = 0;
        const auto hears = [&](const QString &word, int timeout) {
            Mix_Chunk *chunk =
                Mix_LoadWAV(qUtf8Printable(programFile(u"data/mp3/%1.mp3"_s.arg(word))));
            const QByteArray samples =
                soundIn({reinterpret_cast<const char *>(chunk->abuf), int(chunk->alen)});
            Mix_FreeChunk(chunk);
            const auto isPlayed = [&] {
                const QMutexLocker lock(&playedLock);
                const qsizetype at = soundIn(played).indexOf(samples, end);
                end = at < 0 ? end : at + samples.size();
                return at >= 0;
            };
            return QTest::qWaitFor(isPlayed, timeout);
        };
        press(u"F1 1"_s);
        QTest::qWait(50);
        QVERIFY(played.isEmpty()); // the voice is off
        voice->click();
        const QString keys =
            u"F2=runup F8=19down Control=tod -=money 0=0 1=1 2=2 3=3 4=4 5=5 6=6 7=7 8=8 9=9"_s;
        for (const QString &key : keys.split(u' ')) {
            press(key.section(u'=', 0, 0));
            QVERIFY2(hears(key.section(u'=', 1), 4000), qPrintable(key));
        }
        QFile::remove(programFile(u"data/mp3/8.mp3"_s));
        QFile::resize(programFile(u"data/mp3/9.mp3"_s), 0);
        const qsizetype before = end;
        press(u"1 8"_s);
        QTest::qWait(200);
        press(u"2 3 9 4"_s);
        QVERIFY(hears(u"4"_s, 4000)); // a word without recording is left out
        press(u"5"_s);
        voice->click();
        QTest::qWait(200);
        voice->click();
        press(u"6"_s);
        window.reset();
        QTest::qWait(200);
        for (const QString &stopped : {u"1"_s, u"2"_s, u"3"_s, u"5"_s, u"6"_s}) {
            end = before; // a key, the end of the voice and the end of its page stop a word
            QVERIFY2(!hears(stopped, 0), qPrintable(stopped));
        }
        Mix_SetPostMix(nullptr, nullptr);
        QDir::setCurrent(QDir::tempPath()); // Windows removes no current folder
    }
};

int main(int argc, char **argv)
{
    const QTemporaryDir ownPlace; // where no other copy of the program has its lock
    qputenv("TMPDIR", ownPlace.path().toUtf8());
    const Application application(argc, argv);
    ProgramTest test;
    const int failures = QTest::qExec(&test, argc, argv);
    return failures > 0 ? failures : endByLogOff();
}
#include "test_program.moc"
