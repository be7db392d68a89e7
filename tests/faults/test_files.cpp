// SPDX-License-Identifier: MIT
// Files: Ledgers that are damaged or no Ledgers at all, and what can be read out of a good one
// without its password, or with it once a draw is closed.
#include "desktop/programfolder.h"
#include "entry/save.h"
#include "faults/day.h"
#include "faults/faults.h"
#include "faults/faultydisk.h"
#include "faults/rawpages.h"
#include "ledger/ledger.h"
#include "settings/closing.h"
#include "support/boxscript.h"
#include "support/outcome.h"
#include "support/testledger.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype PageSize = 1024;

QByteArray noise(qsizetype size, QRandomGenerator &dice)
{
    QByteArray bytes(size, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return char(dice.generate()); });
    return bytes;
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("a damaged file cannot be written");
}

/// Makes the damage of a kind in its @p at th form to the bytes of a Ledger.
using Damage = std::function<QByteArray(QByteArray bytes, int at, QRandomGenerator &dice)>;

QByteArray turnBit(QByteArray bytes, int at, QRandomGenerator &dice)
{
    const qsizetype pages = bytes.size() / PageSize;
    // Anywhere but in the filling behind a page's signature, which means nothing.
    const qsizetype place = at % pages * PageSize + dice.bounded(PageSize - 12);
    bytes[place] = char(bytes[place] ^ (1 << dice.bounded(8)));
    return bytes;
}

QByteArray cutOff(QByteArray bytes, int, QRandomGenerator &dice)
{
    bytes.chop(dice.bounded(1, int(bytes.size())));
    return bytes;
}

QByteArray dropPages(QByteArray bytes, int, QRandomGenerator &dice)
{
    bytes.chop(PageSize * dice.bounded(1, int(bytes.size() / PageSize)));
    return bytes;
}

QByteArray swapPages(QByteArray bytes, int at, QRandomGenerator &dice)
{
    const int pages = int(bytes.size() / PageSize);
    const int one = 1 + at % (pages - 1);
    const int other = (one + dice.bounded(1, pages - 1)) % pages;
    const QByteArray kept = bytes.mid(one * PageSize, PageSize);
    bytes.replace(one * PageSize, PageSize, bytes.mid(other * PageSize, PageSize));
    return bytes.replace(other * PageSize, PageSize, kept);
}

QByteArray emptyPage(QByteArray bytes, int at, QRandomGenerator &)
{
    return bytes.replace(at % (bytes.size() / PageSize) * PageSize, PageSize,
                         QByteArray(PageSize, '\0'));
}

} // namespace

Q_DECLARE_METATYPE(Damage)

void FaultsTest::damagedLedgerIsRefused_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<Damage>("damage");
    const auto row = [](const char *name, int count, const Damage &damage) {
        QTest::newRow(name) << count << damage;
    };
    row("a bit turned in each page", 90, turnBit);
    row("cut off anywhere", 35, cutOff);
    row("cut off between pages", 15, dropPages);
    row("two pages swapped", 20, swapPages);
    row("a page of zeros", 20, emptyPage);
    row("no bytes", 1, [](auto, int, auto &) { return QByteArray(); });
    row("noise", 10, [](auto, int at, auto &dice) { return noise(1 << (2 * at), dice); });
    row("another salt", 5, [](const QByteArray &bytes, int, QRandomGenerator &dice) {
        return noise(16, dice) + bytes.mid(16);
    });
    row("no salt", 1, [](const QByteArray &bytes, int, auto &) { return bytes.mid(16); });
    const auto other = [](const QString &password, const QString &sql, bool ledger = false) {
        return [password, sql, ledger](const QByteArray &bytes, int, auto &) {
            const QTemporaryDir folder;
            const QString path = folder.filePath(u"other"_s);
            if (ledger)
                write(path, bytes);
            runStockTool(path, password, sql);
            QFile file(path);
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
    };
    const QString table = u"CREATE TABLE tblNumber (NPK);"_s;
    row("a plain database", 1, other({}, table));
    row("another password", 1, other(u"639418"_s, table));
    row("another database of that password", 1, other(u"639417"_s, table));
    row("a foreign mark", 1, other(u"639417"_s, u"PRAGMA application_id = 1;"_s, true));
    row("a lost table", 1, other(u"639417"_s, u"DROP TABLE tblNumLog;"_s, true));
}

void FaultsTest::damagedLedgerIsRefused()
{
    QFETCH(int, count);
    QFETCH(Damage, damage);
    const ProgramFolder folder;
    folder.open();
    Day(m_seed, std::vector(60, Step::File), true).perform();
    QCOMPARE(LedgerConnection->run(u"PRAGMA freelist_count"_s).rows[0][0].toInt(), 0);
    CloseLedger();
    const QByteArray good = folder.bytes()[u"ztkdata.ZDB"_s];
    QVERIFY(good.size() > 20 * PageSize && good.size() < 90 * PageSize);
    QRandomGenerator dice(m_seed);
    for (int at = 0; at < count; ++at) {
        const QByteArray bad = damage(good, at, dice);
        QVERIFY(bad != good);
        write(folder.ledger(), bad);
        const auto before = folder.bytes();
        const BoxScript script;
        QCOMPARE(endStatus([] { ConnectLedger(); }), 1);
        QCOMPARE(script.texts().size(), 1);
        static const QRegularExpression told(
            u"^เชื่อมต่อฐานข้อมูลไม่ได้ : (file is encrypted or is not a database|"
            "file is not a database|database disk image is malformed)$"_s);
        QVERIFY2(told.match(script.texts()[0]).hasMatch(), qPrintable(script.texts()[0]));
        QVERIFY(folder.bytes() == before);
    }
    write(folder.ledger(), good); // the test would see nothing if the good one were refused too
    ConnectLedger();
}

void FaultsTest::whatIsNoFileIsRefused()
{
    const ProgramFolder folder;
    QFile::remove(folder.ledger());
    write(folder.journal(), QByteArray(5000, 'j')); // of a book that somebody has moved away
    QStringList left(u"ztkdata.ZDB-wal"_s);
    for (int round = 0; round < 2; ++round) {
        const BoxScript script;
        QCOMPARE(endStatus([] { ConnectLedger(); }), 1);
        QCOMPARE(script.texts(),
                 QStringList(u"เชื่อมต่อฐานข้อมูลไม่ได้ : unable to open database file"_s));
        QCOMPARE(script.boxes().first().style.icon, BoxIcon::None);
        QCOMPARE(script.boxes().first().title, u"Mirakla Desk"_s);
        QCOMPARE(QDir(folder.data()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), left);
        QCOMPARE(QFile(folder.journal()).size(), 5000);
        QDir().mkdir(folder.ledger());
        left.prepend(u"ztkdata.ZDB"_s);
    }
}

/// What a power cut leaves of the first page while the journal is being moved into the file. The
/// salt stands there too.
void FaultsTest::spoiltFirstPageComesFromTheJournal()
{
    const ProgramFolder folder;
    folder.open();
    Day(m_seed, std::vector(60, Step::File), true).perform(); // enough for a longer file
    auto left = folder.bytes();
    CloseLedger();
    const QStringList kept = rowsLeftIn(folder.ledger());
    QByteArray &file = left[u"ztkdata.ZDB"_s];
    const QByteArray salt = file.first(16);
    QRandomGenerator dice(m_seed);
    write(folder.ledger(), file.replace(0, PageSize, noise(PageSize, dice)));
    write(folder.journal(), left[u"ztkdata.ZDB-wal"_s]);
    const BoxScript script;
    QVERIFY(!endStatus([] { ConnectLedger(); })); // by its password
    CloseLedger();
    QCOMPARE(folder.bytes().keys(), QStringList(u"ztkdata.ZDB"_s));
    QCOMPARE(folder.bytes()[u"ztkdata.ZDB"_s].first(16), salt);
    QCOMPARE(rowsLeftIn(folder.ledger()), kept);
}

/// A copy of the file alone beside the WAL of a killed program, as somebody puts a backup back. SQLite
/// by itself would apply the one to the other and make a mixture of two states.
void FaultsTest::restoredCopyIsWhole()
{
    QRandomGenerator dice(m_seed);
    const int rounds = times("DESK_RESTORES", 15);
    int setAside = 0;
    for (int round = 0; round < rounds; ++round) {
        const ProgramFolder folder;
        const auto open = [&] {
            folder.open();
            LedgerConnection->setMaxWalPages(dice.bounded(10, 400)); // else there is one WAL
        };
        const auto work = [&] {
            std::vector kinds(size_t(dice.bounded(1, 5)), Step::File);
            kinds.push_back(dice.bounded(2) == 0 ? Step::Cut : Step::Check);
            Day(dice.generate(), kinds, true).perform();
        };
        open();
        work();
        const QByteArray early = folder.bytes()[u"ztkdata.ZDB-wal"_s];
        work();
        const bool copiedWhileClosed = dice.bounded(2) == 0;
        if (copiedWhileClosed)
            CloseLedger();
        const QTemporaryDir place;
        const QString restored = place.filePath(u"ztkdata.ZDB"_s);
        QFile::copy(folder.ledger(), restored);
        if (copiedWhileClosed && dice.bounded(3) == 0) // and used by something that writes no ids
            runStockTool(restored, u"639417"_s,
                         u"WITH RECURSIVE n(key) AS (VALUES (1) UNION ALL SELECT key + 1 FROM n"
                         " LIMIT 200) INSERT INTO tblNumberFix SELECT key, '123' FROM n;"_s);
        const QStringList copied = rowsLeftIn(restored);
        if (copiedWhileClosed)
            open();
        work();
        // Somebody may also have copied the WAL, but before the file.
        const bool isEarly = copiedWhileClosed && dice.bounded(2) == 0;
        const QByteArray wal = isEarly ? early : folder.bytes()[u"ztkdata.ZDB-wal"_s];
        write(restored + u"-wal"_s, wal);
        const QStringList later = rowsLeftIn(folder.ledger());
        const QStringList found = rowsLeftIn(restored);
        QVERIFY2(found == copied || found == later, qPrintable(found.join(u'\n')));

        Connection::open(restored, ProgramFolder::key());
        const QStringList names = QDir(place.path()).entryList(QDir::Files);
        if (found == later)
            continue;
        ++setAside;
        QCOMPARE(names.size(), 2); // nothing of the WAL is lost
        QVERIFY(names[1].startsWith(u"ztkdata.ZDB-wal-of-another-file-2"_s));
        QFile aside(place.filePath(names[1]));
        QVERIFY(aside.open(QIODevice::ReadOnly) && aside.readAll() == wal);
    }
    QVERIFY(setAside > 0);
    qInfo("%d copies, %d of another state than the WAL", rounds, setAside);
}

/// Of a file with another salt, which opens nothing here.
void FaultsTest::walOfAnotherLedgerIsSetAside()
{
    const ProgramFolder folder;
    {
        const TestLedger other;
        other.run(u"DELETE FROM tblMember"_s);
        other.run(u"PRAGMA user_version = 0"_s); // as of a version that wrote no ids
        QFile::copy(other.path() + u"-wal"_s, folder.journal());
    }
    setProgramFolder(folder.path());
    const BoxScript script;
    QVERIFY(!endStatus([] { ConnectLedger(); }));
    QCOMPARE(LedgerConnection->run(u"SELECT count(*) FROM tblMember"_s).rows[0][0].toInt(), 1);
    QCOMPARE(folder.bytes().size(), 3);
}

/// As a WAL that was applied to another state of the file leaves it.
void FaultsTest::indexThatDisagreesIsRebuilt()
{
    const ProgramFolder folder;
    folder.open();
    Day(m_seed, std::vector(5, Step::File), true).perform();
    CloseLedger();
    runStockTool(
        folder.ledger(), u"639417"_s,
        u".dbconfig defensive off\n" // which newer versions switch on; older ones ignore it
        "PRAGMA writable_schema = ON; UPDATE sqlite_master SET"
        " sql = replace(sql, '(NameFK)', '(numBuy)') WHERE name = 'tblNumber_buyer';"_s);
    const auto rows = [&] { return rowsLeftIn(folder.ledger()); };
    QVERIFY2(rows().first().contains(u"index"_s), qPrintable(rows().first()));
    folder.open();
    saveDiscount(u"1"_s);
    QVERIFY2(rows().contains(u"discount 6 1"_s), qPrintable(rows().first()));
}

/// The engine cannot tell a damaged journal from one that a power cut tore: what stands behind the
/// damage is lost, but never half of a step.
void FaultsTest::damagedJournalLeavesWholeSteps()
{
    const ProgramFolder folder;
    folder.open();
    const Day day(m_seed, {Step::File, Step::Cut, Step::Check, Step::File, Step::Cut, Step::File},
                  true);
    qsizetype acknowledged = 0;
    Day(day).perform([&] { ++acknowledged; });
    const auto good = folder.bytes();
    CloseLedger();
    QRandomGenerator dice(m_seed);
    const QTemporaryDir place;
    const QString ledger = place.filePath(u"ledger"_s);
    write(ledger, good[u"ztkdata.ZDB"_s]);
    QSet<qsizetype> lengths;
    for (int damage = 0; damage < 100; ++damage) {
        QByteArray journal = good[u"ztkdata.ZDB-wal"_s];
        const auto at = dice.bounded(journal.size());
        if (damage == 0)
            journal.clear(); // or gone, which is the same to the engine
        else if (damage % 2 == 0)
            journal.truncate(at);
        else
            journal[at] = char(journal[at] ^ (1 << dice.bounded(8)));
        write(ledger + u"-wal"_s, journal);
        const QStringList found = rowsLeftIn(ledger);
        bool whole = false;
        for (qsizetype steps = 0; steps <= acknowledged && !whole; ++steps) {
            model::Book book;
            whole = Day(day).leadsTo(found, steps, book);
        }
        QVERIFY2(whole, qPrintable(found.join(u'\n')));
        lengths += found.size();
    }
    QVERIFY(lengths.size() > 3); // the journal did count
}

void FaultsTest::nothingLeaks()
{
    const ProgramFolder folder;
    folder.open();
    const FaultyDisk disk(folder.data());
    const QByteArray customer = "ลูกค้า-"; // all names of the dice begin with it
    const QByteArray telephone = "0891234567";
    const QByteArray keyer = "kept by sv"; // closes every line
    CurrentUser = QString::fromLatin1(keyer);
    const auto inBook = [&] {
        return readRawPages(folder.ledger(), folder.ledger()).plain
               + readRawPages(folder.journal(), folder.ledger()).plain;
    };
    const auto onDisk = [&] { return folder.bytes().values().join(); };
    std::vector<Step::Kind> kinds(300, Step::File);
    for (size_t at = 5; at < kinds.size(); at += 3)
        kinds[at] = Step::Cut;
    kinds.push_back(Step::Check);
    Day day(m_seed, kinds, true);
    day.perform();
    LedgerConnection->run(u"UPDATE tblMember SET Mber = ? WHERE MPK > 0"_s,
                          {QString::fromLatin1(telephone)});
    for (const QByteArray &known : {customer, telephone, keyer}) {
        QVERIFY(inBook().contains(known));
        QVERIFY(!onDisk().contains(known));
        QVERIFY(!onDisk().contains(QByteArray(
            reinterpret_cast<const char *>(QString::fromUtf8(known).utf16()), known.size())));
    }

    const BoxScript yes({BoxAnswer::Ok, BoxAnswer::Ok, BoxAnswer::Ok});
    QCOMPARE(endStatus([] { closeDraw([] { return true; }); }), 0);
    QVERIFY(inBook().contains(customer));
    QVERIFY(!inBook().contains(keyer));
    folder.open();
    QCOMPARE(endStatus([] { wipeLedger(); }), 0);
    QVERIFY(!inBook().contains(customer));
    QVERIFY(!inBook().contains(telephone));
    for (const QString &path : disk.opened()) // not even for an instant was there another file
        QCOMPARE(path, folder.journal());
    QCOMPARE(folder.bytes().keys(), QStringList(u"ztkdata.ZDB"_s));
}
