// SPDX-License-Identifier: MIT
// What a machine can do to a book that is being kept: the process is killed, the power is cut, the
// disk fails, the program is started twice. No row that was acknowledged may ever be lost.
#include "faults/victim.h"
#include "ledger/ledger.h"
#include "ledger/schema.h"
#include "runtime/values.h"
#include "support/testledger.h"

#include <QDir>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int Kills = 214; // one in 16 may strike a clean end or a start instead of a save
constexpr std::array SaveOrder{0U, 1U, 3U, 2U, 4U, 5U, 6U, 7U}; // tod goes first with 2 digits
const QString Discount = u"discount "_s;

/// A program's folder with an empty Ledger that nobody has opened.
struct ProgramFolder
{
    ProgramFolder()
    {
        QDir(path()).mkdir(u"data"_s);
        makeEmptyLedger(ledger());
    }
    ~ProgramFolder()
    {
        QFile::setPermissions(path() + u"/data"_s,
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    Q_DISABLE_COPY_MOVE(ProgramFolder)

    QString path() const { return folder.path(); }
    QString ledger() const { return path() + u"/data/ztkdata.ZDB"_s; }

    /// Bytes of the Ledger and of its journal.
    QList<QByteArray> bytes() const
    {
        QFile file(ledger());
        QFile journal(ledger() + u"-wal"_s);
        return {file.open(QIODevice::ReadOnly) ? file.readAll() : "none",
                journal.open(QIODevice::ReadOnly) ? journal.readAll() : "none"};
    }

    QTemporaryDir folder;
};

/// A line in words. A tod number may be filed in any order of its digits, so it is told sorted.
QString lineText(const QString &customer, const QVariantList &betClass, QString number, int amount)
{
    if (betClass[2].toInt() == Tod)
        std::sort(number.begin(), number.end());
    return u"%1 %2 %3 %4 %5 %6"_s.arg(customer, betClass[0].toString(), betClass[1].toString(),
                                      betClass[2].toString(), number, QString::number(amount));
}

/// Rows that filing a ticket leaves, in their order.
QStringList rowsOf(const RandomTicket &random)
{
    QStringList rows;
    for (const unsigned at : SaveOrder) {
        const QVariantList betClass{BetClasses[at].num23, BetClasses[at].updown ? -1 : 0,
                                    BetClasses[at].numType};
        const SpreadModel &grid = random.ticket.grids[at];
        for (int row = 1; row <= grid.rows(); ++row)
            rows += lineText(random.customer, betClass, grid.text(row, NumberColumn),
                             CLng(grid.text(row, AmountColumn)));
    }
    if (!random.discount.isEmpty())
        rows += Discount + QString::number(CLng(random.discount));
    return rows;
}

/// Rows of a Ledger: its lines in the order of their keys, then its discounts.
QStringList rowsOf(Connection &ledger)
{
    QStringList rows;
    const auto lines = ledger.run(u"SELECT NPK, Mname, num23, updown, numType, numValue, numBuy"
                                  " FROM tblNumber LEFT JOIN tblMember ON NameFK = MPK"
                                  " ORDER BY NPK"_s);
    for (const QVariantList &row : lines.rows) {
        rows += lineText(row[1].toString(), row.mid(2, 3), row[5].toString(), row[6].toInt());
        if (row[0].toInt() != rows.size())
            rows.last() += u" under a wrong key"_s;
    }
    for (const QVariantList &row : ledger.run(u"SELECT rMoney FROM tblRMoney ORDER BY PK"_s).rows)
        rows += Discount + row[0].toString();
    return rows;
}

/// Rows of a Ledger that its owner left as it stood, read from a copy, so that the next owner meets
/// the journal that was left to it. The file has to be sound and no customer in it twice.
QStringList rowsLeftIn(const QString &ledger)
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath(u"copy"_s);
    QFile::copy(ledger, copy);
    QFile::copy(ledger + u"-wal"_s, copy + u"-wal"_s);
    const auto opened = Connection::open(copy);
    const auto damage = opened->run(u"PRAGMA integrity_check"_s).rows[0][0].toString();
    const auto twins =
        opened->run(u"SELECT count(*) - count(DISTINCT Mname) FROM tblMember"_s).rows[0][0].toInt();
    return damage == u"ok" && twins == 0 ? rowsOf(*opened) : QStringList{u"damaged: "_s + damage};
}

/// Has @p book, the rows of earlier victims, go on with what a victim with @p seed left. Every row
/// that it acknowledged must stand there once and whole; the one under way may.
void goOn(QStringList &book, const QString &ledger, quint32 seed, qsizetype acknowledged)
{
    const QStringList found = rowsLeftIn(ledger);
    const qsizetype before = book.size();
    QRandomGenerator random(seed);
    while (book.size() <= before + acknowledged)
        book += rowsOf(RandomTicket(random));
    book.resize(before + acknowledged + (found.size() > before + acknowledged ? 1 : 0));
    QStringList expected = book;
    std::stable_partition(expected.begin(), expected.end(),
                          [](const QString &row) { return !row.startsWith(Discount); });
    QCOMPARE(found, expected);
}

} // namespace

class FaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void killLosesNoAcknowledgedRow();
    void powerCutLosesNoAcknowledgedRow();
    void failureEndsInTheReport_data();
    void failureEndsInTheReport();
    void readOnlyFolderIsRefusedAtTheNextStart();
    void secondCopyIsRefused();

private:
    QTemporaryDir m_place; ///< so that a running program is no other copy of a victim
    quint32 m_seed = 0;
};

void FaultsTest::initTestCase()
{
    bool given = false;
    m_seed = qEnvironmentVariable("DESK_FAULT_SEED").toUInt(&given);
    if (!given)
        m_seed = QRandomGenerator::global()->generate() | 1U;
    qInfo("DESK_FAULT_SEED=%u", m_seed);
    qputenv("TMPDIR", m_place.path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", m_place.path().toUtf8());
}

void FaultsTest::killLosesNoAcknowledgedRow()
{
    QRandomGenerator random(m_seed);
    std::optional<ProgramFolder> folder;
    QStringList book;
    qsizetype rows = 0;
    for (int kill = 0; kill < Kills; ++kill) {
        if (kill % 25 == 0) { // each book outlives many kills, but stays quick to read
            folder.emplace();
            book.clear();
        }
        const quint32 seed = random.bounded(1U, 1'000'000'000U);
        Victim victim(folder->path(), seed);
        QVERIFY2(victim.waitForRow(), qUtf8Printable(victim.boxes()));
        QThread::usleep(random.bounded(20'000U));
        victim.kill();
        rows -= book.size();
        goOn(book, folder->ledger(), seed, victim.acknowledged());
        if (QTest::currentTestFailed())
            return;
        rows += book.size();
    }
    qInfo("%d kills among %d rows", Kills, int(rows));
}

void FaultsTest::powerCutLosesNoAcknowledgedRow()
{
    const TestLedger ledger;
    const QTemporaryDir disk;
    mirrorSafeBytes(QFileInfo(ledger.path()).path(), disk.path());
    QRandomGenerator random(m_seed);
    int losses = 0;
    for (int cuts = 0; cuts < 40;) { // enough rows for the journal to start over
        RandomTicket(random).save([&] {
            if (random.bounded(20) != 0)
                return;
            ++cuts;
            losses +=
                rowsLeftIn(disk.filePath(u"ztkdata.ZDB"_s)) == rowsOf(*LedgerConnection) ? 0 : 1;
        });
    }
    mirrorSafeBytes({}, {});
    QCOMPARE(losses, 0);
}

void FaultsTest::failureEndsInTheReport_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<int>("afterRow");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *name, Fault fault, int afterRow, const QString &words) {
        QTest::newRow(name) << fault << afterRow << words;
    };
    row("full disk", Fault::Full, 3, u"database or disk is full"_s);
    row("full disk, the journal started over", Fault::Full, 600, u"database or disk is full"_s);
    row("file at its size limit", Fault::SizeLimit, 3, u"disk I/O error"_s);
    row("disk that cannot promise", Fault::NoPromise, 7, u"disk I/O error"_s);
    row("folder that turns read-only", Fault::ReadOnlyFolder, 7,
        u"attempt to write a readonly database"_s);
}

void FaultsTest::failureEndsInTheReport()
{
    QFETCH(Fault, fault);
    QFETCH(int, afterRow);
    QFETCH(QString, words);
    const ProgramFolder folder;
    Victim victim(folder.path(), 1, fault, afterRow);
    QCOMPARE(victim.waitForEnd(), 1);
    QCOMPARE(victim.boxes(), u"Run-time error '-2147467259 (80004005)': "_s + words);
    const qsizetype acknowledged = victim.acknowledged();
    QVERIFY(acknowledged >= afterRow);
    QStringList book;
    goOn(book, folder.ledger(), 1, acknowledged);
}

void FaultsTest::readOnlyFolderIsRefusedAtTheNextStart()
{
    const ProgramFolder folder;
    QCOMPARE(Victim(folder.path(), 1, Fault::ReadOnlyFolder, 7).waitForEnd(), 1);
    const auto left = folder.bytes(); // with the journal, which could not be removed
    Victim next(folder.path(), 1);
    QCOMPARE(next.waitForEnd(), 1);
    QCOMPARE(next.boxes(), u"เชื่อมต่อฐานข้อมูลไม่ได้ : attempt to write a readonly database"_s);
    QVERIFY(folder.bytes() == left);
}

void FaultsTest::secondCopyIsRefused()
{
    const ProgramFolder folder;
    Victim first(folder.path());
    QVERIFY2(first.waitForRow(), qUtf8Printable(first.boxes()));
    const auto before = folder.bytes();
    Victim second(folder.path());
    QCOMPARE(second.waitForEnd(), 1);
    QVERIFY(second.boxes().startsWith(u"โปรแกรมถูกเปิดใช้อยู่แล้ว"_s));
    QVERIFY(folder.bytes() == before);

    first.kill(); // a dead copy holds nothing
    Victim third(folder.path());
    QVERIFY2(third.waitForRow(), qUtf8Printable(third.boxes()));
}

int main(int argc, char **argv)
{
    if (argc > 2 && qstrcmp(argv[1], "victim") == 0)
        return liveAsVictim(argc, argv);
    QCoreApplication application(argc, argv);
    FaultsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_faults.moc"
