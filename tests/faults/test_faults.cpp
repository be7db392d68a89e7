// SPDX-License-Identifier: MIT
// What a machine does to a book that is being kept: random days of work on the real Ledger, with
// kills, power cuts, failing disks and damaged files. What is left must be a state that the model
// passed through, no earlier than the last row that was done. Long runs:
//   DESK_KILLS=10000 test_faults killLosesNoDoneRow
//   DESK_POWER_SEEDS=100 test_faults powerCutLosesNoDoneRow
//   DESK_TICKETS=20000 test_faults memoryStaysFlat
// DESK_FAULT_SEED=N repeats a run.
#include "desktop/application.h"
#include "desktop/programend.h"
#include "desktop/programfolder.h"
#include "faults/faultydisk.h"
#include "ledger/emptyledger.h"
#include "ledger/ledger.h"
#include "ledger/salt.h"
#include "model/step.h"
#include "program.h"
#include "support/boxscript.h"
#include "support/outcome.h"
#include "support/testledger.h"
#include "widgets/combo.h"
#include "widgets/pushbutton.h"

#include <QLineEdit>
#include <QLoggingCategory>
#include <QPixmapCache>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <optional>
#include <set>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <malloc.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype PageSize = 1024;
constexpr QFile::Permissions NotWritable = QFile::ReadOwner | QFile::ExeOwner;
const QString Refused = u"เชื่อมต่อฐานข้อมูลไม่ได้ : "_s;
const QString Report = u"Run-time error '-2147467259 (80004005)': "_s;
const QString ReadOnly = u"attempt to write a readonly database"_s;
const QString Shut = u"unable to open database file"_s;
const QString Unreadable =
    u"database disk image is malformed|file is encrypted or is not a database|file is not a database"_s;

int numberIn(const char *variable, int otherwise)
{
    return qEnvironmentVariable(variable, QString::number(otherwise)).toInt();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("a file of the test cannot be written");
}

QString book()
{
    return programFile(u"data/ztkdata.ZDB"_s);
}

model::Book expected; ///< model of the book

/// Makes a new folder for the program, with an empty book. All books have the same key.
void beginBook()
{
    static std::optional<QTemporaryDir> folder;
    static QByteArray empty;
    CloseLedger();
    expected = {};
    folder.emplace();
    setProgramFolder(folder->path());
    QDir(folder->path()).mkdir(u"data"_s);
    if (empty.isEmpty())
        makeEmptyLedger(book());
    else
        write(book(), empty);
    empty = bytesOf(book());
}

/// Opens a book without deriving the key each time, which takes longer than all else.
std::unique_ptr<Connection> open(const QString &path = book())
{
    static const QByteArray key = keyWithSalt(LedgerPassword, bytesOf(path).first(SaltSize));
    auto opened = Connection::open(path, key.first(66) + '\'');
    opened->setMaxWalPages(20); // so that a day has several WALs
    return opened;
}

/// A Ledger and its WAL; those of the book unless they are given.
struct Files
{
    QByteArray ledger = bytesOf(book());
    QByteArray wal = bytesOf(book() + u"-wal"_s);
};

/// Returns the rows that the next start of the program finds, or what is wrong with the files, and
/// whether the WAL was renamed. The start after that must find the same.
QStringList rowsIn(const Files &files)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"book"_s);
    write(path, files.ledger);
    if (!files.wal.isEmpty())
        write(path + u"-wal"_s, files.wal);
    std::array<QStringList, 2> found;
    for (QStringList &rows : found) {
        try {
            const auto opened = open(path);
            const QString check = opened->run(u"PRAGMA integrity_check"_s).rows[0][0].toString();
            rows = check == u"ok"_s ? ledgerRows(*opened) : QStringList(check);
        } catch (const RunTimeError &error) {
            rows = {error.report()};
            if (bytesOf(path) != files.ledger)
                rows += u"and the refused file was changed"_s;
        }
        for (const QString &name : QDir(folder.path()).entryList({u"book-wal-of-another-file-*"_s}))
            rows +=
                bytesOf(folder.filePath(name)) == files.wal ? u"WAL renamed"_s : u"WAL damaged"_s;
    }
    return found[0] == found[1] ? found[0] : found[0] + QStringList(u"then:"_s) + found[1];
}

/// Random steps of some kinds, over and over: the same ones for the same seed.
struct Day
{
    Step next() { return Step::random(Step::Kind(kinds[at++ % kinds.size()]), random, 6); }

    QRandomGenerator random;
    QByteArray kinds;
    qsizetype at = 0;
};

/// Does a day with the model up to the row that was done last, or to a state on the way to the next.
/// Returns what is in the files if the model passes no such state.
QString difference(const Files &files, Day day, qsizetype done)
{
    QStringList found = rowsIn(files);
    found.removeAll(u"WAL renamed"_s); // an old one, of which a power cut has left a part
    model::Book passing = expected;
    std::optional<model::Book> same;
    qsizetype passed = 0;
    const auto compare = [&](bool isDone) {
        passed += isDone ? 1 : 0;
        const bool mayBeLast = passed == done || (passed == done + 1 && isDone);
        if (!same && mayBeLast && passing.rows() == found)
            same = passing;
    };
    compare(false);
    while (passed <= done)
        day.next().perform(passing, compare);
    expected = same.value_or(expected);
    return same ? QString() : u"%1 rows done, then found:\n%2"_s.arg(done).arg(found.join(u'\n'));
}

/// A day as the program works on the book, from its start to its end.
struct Work
{
    void run(
        Day day, const std::function<void()> &rowDone = [] {})
    {
        const BoxScript script;
        status = endStatus([&] {
            try {
                atProgramEnd(CloseLedger);
                LedgerConnection = open();
                for (qsizetype step = 0; step < day.kinds.size(); ++step)
                    day.next().perform([&] {
                        ++done;
                        rowDone();
                    });
            } catch (const RunTimeError &error) {
                endWithReport(error);
            }
            endProgram(0);
        });
        box = script.texts().join(u'\n');
    }

    qsizetype done = 0;
    std::optional<int> status;
    QString box;
};

/// This program, started by itself: works on the book until it is killed. It prints a dot for each
/// row that is done, and the texts of boxes.
struct Victim : QProcess
{
    Victim(quint32 seed, const QByteArray &kinds)
    {
#ifdef Q_OS_WIN
        // A console that starts for a process that is killed would stay and keep the pipes open.
        setCreateProcessArgumentsModifier([](CreateProcessArguments *start) {
            start->flags = (start->flags & ~ulong(CREATE_NO_WINDOW)) | DETACHED_PROCESS;
        });
#endif
        start(QCoreApplication::applicationFilePath(),
              {u"victim"_s, programFile({}), QString::number(seed), QString::fromLatin1(kinds)});
    }
};

void print(const QByteArray &text)
{
    if (std::fputs(text.constData(), stdout) == EOF || std::fflush(stdout) != 0)
        qFatal("the test has ended");
}

int liveAsVictim(char **argv)
{
    setProgramFolder(QString::fromLocal8Bit(argv[2]));
    setBoxShower([](const Box &box) {
        print(box.text.toUtf8());
        return BoxAnswer::Cancel;
    });
    const auto window = startProgram();
    for (Day day{QRandomGenerator(QByteArray(argv[3]).toUInt()), argv[4]}; window;)
        day.next().perform([] { print("."); });
    return 1;
}

} // namespace

class FaultsTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_place; ///< of the lock against second copies
    QRandomGenerator m_random;

    Day day(const QByteArray &kinds) { return {QRandomGenerator(m_random.generate()), kinds}; }

    /// Damages the book for a moment, and opens it as the program does.
    static void refuses(const QString &words, const std::function<void(QByteArray &bytes)> &damage)
    {
        const QFileInfo data(programFile(u"data"_s));
        const auto permissions = data.permissions();
        const QByteArray good = bytesOf(book());
        QByteArray bytes = good;
        damage(bytes);
        if (bytes != good)
            write(book(), bytes);
        const QStringList names = QDir(data.filePath()).entryList();
        bytes = bytesOf(book());
        const BoxScript script;
        withPlainRights([&] { QCOMPARE(endStatus(ConnectLedger), 1); });
        const QString box = script.texts().join(u'\n');
        QVERIFY2(words.split(u'|').contains(QString(box).remove(Refused)), qPrintable(box));
        QCOMPARE(QDir(data.filePath()).entryList(), names);
        QCOMPARE(bytesOf(book()), bytes);
        for (const QString &path : {data.filePath(), book()})
            QFile::setPermissions(path, permissions);
        QDir().rmdir(book());
        write(book(), good);
    }

private slots:
    void initTestCase()
    {
        const int seed =
            numberIn("DESK_FAULT_SEED", QRandomGenerator::global()->bounded(1'000'000));
        qInfo("DESK_FAULT_SEED=%d", seed);
        m_random.seed(quint32(seed));
        qputenv("TMPDIR", m_place.path().toUtf8());
        CurrentUser = u"sv"_s;
    }

    void init() { beginBook(); }

    void killLosesNoDoneRow()
    {
        qsizetype rows = 0;
        const int kills = numberIn("DESK_KILLS", 300);
        for (int kill = 1; kill <= kills; ++kill) {
            const quint32 seed = m_random.generate();
            Victim victim(seed, "ffckfckx");
            const bool early = kill % 10 == 0; // during the start or soon after it
            if (!early)
                victim.waitForReadyRead(60'000);
            const bool endedItself = victim.waitForFinished(m_random.bounded(early ? 150 : 30));
            victim.kill();
            victim.waitForFinished();
            const QByteArray dots = victim.readAll();
            QCOMPARE(dots, QByteArray(dots.size(), '.'));
            QVERIFY(!endedItself);
            const Day day{QRandomGenerator(seed), "ffckfckx"};
            const QString wrong = difference({}, day, dots.size());
            QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
            rows += dots.size();
            if (kill % 25 == 0) // a book outlives many kills, but stays quick to read
                beginBook();
        }
        qInfo("%d kills in %d rows", kills, int(rows));
        QVERIFY(rows > kills);
    }

    void onlyOneCopyWorks()
    {
        Victim first(1, "f");
        QVERIFY(first.waitForReadyRead(60'000));
        Victim second(1, "f");
        QVERIFY(second.waitForFinished(60'000));
        QCOMPARE(second.exitCode(), 1);
        const QString words =
            u"โปรแกรมถูกเปิดใช้อยู่แล้ว !!  ไม่สามารถเปิด ซ้อนกันเกิน 1 โปรแกรมในเครื่องเดียว.."_s;
        QCOMPARE(QString::fromUtf8(second.readAll()), words);
        const BoxScript script; // of a program without the lock, which sees only the Ledger in use
        QCOMPARE(endStatus(ConnectLedger), 1);
        QCOMPARE(script.texts(), QStringList(words));
        first.kill();
        first.waitForFinished();
    }

    void powerCutLosesNoDoneRow()
    {
        const int seeds = numberIn("DESK_POWER_SEEDS", 3);
        const Day today = day("ffffffcckfkxffffffcckfkx");
        FaultyDisk disk(book());
        Work work;
        int cuts = 0;
        QString wrong;
        const auto cutPower = [&] {
            for (int seed = 0; seed < seeds && wrong.isEmpty(); ++seed, ++cuts) {
                expected = {};
                const QByteArray ledger = disk.afterPowerCut(book(), m_random);
                const QByteArray wal = disk.afterPowerCut(book() + u"-wal"_s, m_random);
                wrong = difference({ledger, wal}, today, work.done);
            }
        };
        disk.beforeSync = cutPower;
        work.run(today, cutPower);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
        QCOMPARE(work.box, QString());
        qInfo("%d power cuts at %d moments", cuts, cuts / seeds);
    }

    void failingCallEndsInTheReport()
    {
        static const QRegularExpression report(
            u"^((%1|%2)(disk I/O error|database or disk is full|%3|%4))?$"_s.arg(
                QRegularExpression::escape(Report), Refused, Shut, Unreadable));
        const Day today = day("fcckfkx");
        int runs = 0;
        for (const auto fault : {FaultyDisk::Once, FaultyDisk::Always, FaultyDisk::Full}) {
            for (int nth = 1, left = 0; left <= 0; ++nth, ++runs) {
                beginBook();
                Work work;
                {
                    FaultyDisk disk(book(), fault, nth);
                    work.run(today);
                    left = disk.callsLeft;
                }
                const QString wrong = difference({}, today, work.done);
                QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
                QCOMPARE(work.status, work.box.isEmpty() ? 0 : 1); // some are done again later
                QVERIFY2(report.match(work.box).hasMatch(), qPrintable(work.box));
            }
        }
        qInfo("%d failing calls", runs);
    }

    void folderTurnedReadOnlyEndsInTheReport()
    {
#ifdef Q_OS_WIN
        QSKIP("the program does not see the permissions of a folder there");
#endif
        const Day today = day("ffff");
        const QString data = programFile(u"data"_s);
        const auto permissions = QFile::permissions(data);
        Work work;
        withPlainRights(
            [&] { work.run(today, [&] { QFile::setPermissions(data, NotWritable); }); });
        QFile::setPermissions(data, permissions);
        QCOMPARE(work.box, Report + ReadOnly);
        refuses(ReadOnly, [&](auto &) { QFile::setPermissions(data, NotWritable); });
        const QString wrong = difference({}, today, work.done);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    }

    void damagedBookIsRefused()
    {
        LedgerConnection = open();
        for (Day today = day("f"); today.at < 60;)
            today.next().perform();
        CloseLedger();
        const auto pages = int(bytesOf(book()).size() / PageSize);
        QVERIFY(pages > 20 && pages < 90);
        for (int at = 0; at < 90; ++at) {
            refuses(Unreadable, [&](QByteArray &bytes) {
                // not in the padding at the end of a page
                char &byte = bytes[at % pages * PageSize + m_random.bounded(int(PageSize) - 12)];
                byte = char(byte ^ (1 << m_random.bounded(8)));
            });
        }
        for (int at = 0; at < 20; ++at) {
            refuses(Unreadable, [&](QByteArray &bytes) { bytes.chop((at + 1) * PageSize); });
            refuses(Unreadable, [&](QByteArray &bytes) { bytes.chop(1 + m_random.bounded(9999)); });
            refuses(Unreadable, [&](QByteArray &bytes) {
                bytes.replace(at * PageSize, PageSize, QByteArray(PageSize, '\0'));
            });
        }
        for (const auto &sql : {u"PRAGMA application_id = 1;"_s, u"DROP TABLE tblNumLog;"_s}) {
            refuses(Unreadable, [&](QByteArray &bytes) {
                runStockTool(book(), sql);
                bytes = bytesOf(book());
            });
        }
        refuses(ReadOnly, [](auto &) { QFile::setPermissions(book(), QFile::ReadOwner); });
        refuses(Shut, [](auto &) { QFile::remove(book()) && QDir().mkdir(book()); });
        write(book() + u"-wal"_s, "of a book that was moved away");
        for (const int size : {0, 1})
            refuses(Unreadable, [&](QByteArray &bytes) { bytes.truncate(size); });
        refuses(Shut, [](auto &) { QFile::remove(book()); });
        QCOMPARE(Files().wal, "of a book that was moved away");
        QCOMPARE(endStatus(ConnectLedger), std::nullopt); // the good one
    }

    /// SQLite applies a WAL to any file beside it, for example to a backup that somebody restores.
    void walIsAppliedToItsOwnFileOnly()
    {
        Day today = day("ffkc");
        std::vector<std::pair<Files, QStringList>> copies;
        std::set<QStringList> passed;
        const auto copy = [&] { copies.emplace_back(Files(), rowsIn({})); };
        for (int session = 0; session < 3; ++session) {
            LedgerConnection = open();
            for (int step = 0; step < 4; ++step) {
                const Step next = today.next();
                next.perform();
                next.perform(expected, [&](bool) { passed.insert(expected.rows()); });
                copy();
                QCOMPARE(copies.back().second, expected.rows());
            }
            CloseLedger();
            const QByteArray ledger = bytesOf(book());
            // A copy that is changed by a program that writes no ids.
            runStockTool(book(), u"DELETE FROM tblMember WHERE MPK = 1;"_s);
            copy();
            write(book(), ledger);
        }
        for (const auto &[files, rows] : copies) {
            const QStringList alone = rowsIn({files.ledger, {}});
            for (const auto &[others, otherRows] : copies) {
                const QStringList found = rowsIn({files.ledger, others.wal});
                const QStringList renamed(others.wal.isEmpty() ? 0 : 1, u"WAL renamed"_s);
                const bool isForeign = files.ledger != others.ledger && found == alone + renamed;
                QVERIFY2(isForeign || found == otherRows, qPrintable(found.join(u'\n')));
            }
        }
        const auto &[files, rows] =
            copies.at(copies.size() - 2); // with the WAL of the last session
        const QByteArray noise(PageSize, char(m_random.generate()));
        QCOMPARE(rowsIn({noise + files.ledger.mid(PageSize), files.wal}),
                 rows); // as by a power cut
        for (int damage = 0; damage < 100; ++damage) {
            Files damaged = files;
            char &byte = damaged.wal[m_random.bounded(damaged.wal.size())];
            byte = char(byte ^ (1 << m_random.bounded(8)));
            if (damage % 2 == 0) // which the WAL may repair
                damaged.ledger.resize(damaged.ledger.size() + m_random.bounded(-1000, 1000), 'x');
            const QStringList found = rowsIn(damaged);
            const bool isRefused = // and left open, so that closing moves no WAL into it
                found.join(u'|').remove(Report)
                == u"database disk image is malformed|then:|database is locked"_s;
            QVERIFY2(passed.contains(found) || (damage % 2 == 0 && isRefused),
                     qPrintable(found.join(u'\n')));
        }
        // Without ids, a WAL of another state could leave an index that disagrees with its table.
        runStockTool(
            book(),
            u".dbconfig defensive off\n" // ignored by older versions
            "PRAGMA writable_schema = ON; UPDATE sqlite_master SET"
            " sql = replace(sql, '(NameFK)', '(numBuy)') WHERE name = 'tblNumber_buyer';"_s);
        QVERIFY(rowsIn({}).join(u' ').contains(u"index"_s));
        LedgerConnection = open();
        LedgerConnection->run(u"INSERT INTO tblRMoney (rMoney) VALUES (1)"_s); // for a WAL
        QCOMPARE(rowsIn({}), ledgerRows(*LedgerConnection));
    }

    void memoryStaysFlat()
    {
#ifdef Q_OS_WIN
        QSKIP("the memory in use is known only to glibc");
#else
        const auto window = startProgram();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        // These grow up to a bound, which is no leak.
        QPixmapCache::setCacheLimit(0);
        LedgerConnection->run(u"PRAGMA cache_size = 100"_s);
        LedgerConnection->run(
            u"INSERT INTO tblNumber WITH RECURSIVE line(at) AS (SELECT 1 UNION ALL"
            " SELECT at + 1 FROM line WHERE at < 3000) SELECT at, 0, 3, -1, 1,"
            " substr('00' || at, -3), 1, 'sv' FROM line"_s);
        int boxes = 0;
        setBoxShower([&](const Box &) { return ++boxes, BoxAnswer::Ok; });
        std::vector<qint64> memory;
        const int tickets = numberIn("DESK_TICKETS", 240);
        for (int ticket = 0; ticket < tickets; ++ticket) {
            window->openPage(1 + ticket % (PageCount - 1));
            window->openPage(0);
            auto *field = window->page()->findChild<QLineEdit *>(u"Tnumber"_s);
            QTest::mouseClick(field, Qt::LeftButton);
            QTest::keyClick(field, Qt::Key_F1);
            QTest::keyClicks(field, u"123-50"_s);
            QTest::keyClick(field, Qt::Key_Return);
            window->page()->findChild<Combo *>(u"Combo1"_s)->setListIndex(0);
            window->page()->findChild<PushButton *>(u"lvButtons_H0"_s)->click();
            QCOMPARE(boxes, ticket + 1);
            memory.push_back(qint64(mallinfo2().uordblks + mallinfo2().hblkhd));
        }
        const auto third = tickets / 3;
        const auto median = [third](auto begin) {
            std::sort(begin, begin + third);
            return begin[third / 2];
        };
        const qint64 grown = median(memory.end() - third) - median(memory.begin() + third);
        qInfo("%d tickets, %d bytes more for each", tickets, int(grown) / third);
        QVERIFY(grown < 40'000 + 50 * third); // some blocks are taken once, at any time
#endif
    }
};

int main(int argc, char **argv)
{
    QLoggingCategory::setFilterRules(u"default.warning=false"_s); // of Qt's offscreen platform
    const Application application(argc, argv);
    if (argc == 5 && qstrcmp(argv[1], "victim") == 0)
        return liveAsVictim(argv);
    qputenv("QTEST_FUNCTION_TIMEOUT", "2000000000"); // for the long runs
    FaultsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_faults.moc"
