// SPDX-License-Identifier: MIT
// The Ledger file: what it takes to open it, that nothing in it is shown to strangers, and the
// helpers that all rooms share. Damage is done to it among the faults.
#include "desktop/programfolder.h"
#include "ledger/emptyledger.h"
#include "ledger/ledger.h"
#include "runtime/runtimeerror.h"
#include "shell/globals.h"
#include "support/boxscript.h"
#include "support/outcome.h"
#include "support/testledger.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString refusal(const QString &path)
{
    return errorOf([&] { Connection::open(path); });
}

qint16 memberKey(const QString &name)
{
    return LookupKey(name, u"tblMember"_s, u"MPK"_s, u"Mname"_s);
}

const QString Overflow = u"Run-time error '6': Overflow"_s;

} // namespace

class LedgerTest : public QObject
{
    Q_OBJECT

private slots:
    void readOnlyFileIsRefused();
    void openFileIsClosedToOthers();
    void fileThatIsReplacedWhileOpenIsRescued();
    void fileIsEncryptedAndTheStockToolReadsIt();
    void textNeverBecomesASecondStatement();
    void comboListsKeysInOrder();
    void namesStandInOneOrderOnEveryDesktop();
    void lookupOfAName_data();
    void lookupOfAName();
    void lookupOfAKeyBeyond16BitsOverflows();
    void ratesComeFromTheirOneRow();
};

/// It would fail at the first ticket. A folder that is read-only is among the faults.
void LedgerTest::readOnlyFileIsRefused()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"book"_s);
    makeEmptyLedger(path);
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner));
    QString words;
    withPlainRights([&] { words = refusal(path); });
    QVERIFY2(words.contains(u"readonly"_s), qUtf8Printable(words));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(u"book"_s));
}

void LedgerTest::openFileIsClosedToOthers()
{
    const TestLedger ledger;
    QVERIFY(refusal(ledger.path()).endsWith(u"database is locked"_s));
    ledger.addMember(1, u"Lek"_s, u"0"_s);
    // The refused opener must not have let go of the lock, which belongs to the process.
    const QString other = runStockTool(ledger.path(), u"639417"_s, u"DELETE FROM tblMember;"_s);
    QVERIFY2(other.contains(u"database is locked"_s), qPrintable(other));
    QCOMPARE(ledger.run(u"SELECT Mname FROM tblMember"_s), QStringList({u"-"_s, u"Lek"_s}));
}

/// As programs do that keep a folder the same on several machines.
void LedgerTest::fileThatIsReplacedWhileOpenIsRescued()
{
#ifdef Q_OS_WIN
    QSKIP("a file that SQLite has open cannot be replaced there");
#endif
    for (const bool atTheEnd : {false, true}) {
        const TestLedger ledger;
        CloseLedger();
        QFile::setPermissions(ledger.path(), QFile::ReadOwner | QFile::WriteOwner);
        const auto permissions = QFile::permissions(ledger.path());
        ConnectLedger();
        ledger.addMember(1, u"Lek"_s, u"0"_s);
        const QString wal = ledger.path() + u"-wal"_s;
        const QByteArray before = bytesOf(wal);
        QVERIFY(QFile::rename(ledger.path(), ledger.path() + u".away"_s));
        if (atTheEnd)
            makeEmptyLedger(ledger.path() + u".new"_s);
        QFile::rename(ledger.path() + u".new"_s, ledger.path());
        const QByteArray other = bytesOf(ledger.path());
        const BoxScript script;
        QString report;
        if (!atTheEnd)
            report = errorOf([&] { resumeNext([&] { ledger.addMember(2, u"Not"_s, u"0"_s); }); });
        QCOMPARE(endStatus([] { CloseLedger(); }).has_value(), atTheEnd);
        if (atTheEnd)
            report = script.texts().value(0);
        const QStringList rescued = ledger.files().filter(u"ztkdata-rescued-"_s);
        QCOMPARE(rescued.size(), 1);
        QVERIFY2(report.endsWith(rescued[0]), qPrintable(report));
        QVERIFY(bytesOf(wal) == before); // closing leaves what lies there now alone
        QVERIFY(bytesOf(ledger.path()) == other);

        const QString path = QFileInfo(ledger.path()).dir().filePath(rescued[0]);
        QCOMPARE(QFile::permissions(path), permissions);
        const auto opened = Connection::open(path);
        QCOMPARE(opened->run(u"SELECT Mname FROM tblMember"_s).rows.size(), 2);
        QCOMPARE(opened->run(u"PRAGMA journal_mode"_s).rows[0][0].toString(), u"wal"_s);
        QCOMPARE(opened->run(u"PRAGMA integrity_check"_s).rows[0][0].toString(), u"ok"_s);
    }
}

void LedgerTest::fileIsEncryptedAndTheStockToolReadsIt()
{
    const TestLedger ledger;
    ledger.addMember(1, u"สมชาย"_s, u"10"_s);
    QVERIFY(!bytesOf(ledger.path() + u"-wal"_s).contains("สมชาย"));
    QCOMPARE(ledger.run(u"PRAGMA secure_delete"_s), QStringList(u"1"_s)); // deleted is gone
    CloseLedger();
    QCOMPARE(ledger.files(), QStringList(u"ztkdata.ZDB"_s)); // a clean end leaves one file
    QVERIFY(!bytesOf(ledger.path()).contains("สมชาย"));
    QCOMPARE(runStockTool(ledger.path(), u"639417"_s,
                          u"PRAGMA integrity_check; SELECT Mname, Mpercen FROM tblMember;"_s),
             u"ok\n-|0\nสมชาย|10"_s);
}

void LedgerTest::textNeverBecomesASecondStatement()
{
    const TestLedger ledger;
    const auto smuggle = [&] { ledger.run(u"SELECT 1; DELETE FROM tblMember"_s); };
    QVERIFY(!errorOf(smuggle).isEmpty());
    QVERIFY(!errorOf(smuggle).isEmpty()); // what was prepared is kept, so nor at the second try
    QCOMPARE(ledger.run(u"SELECT Mname FROM tblMember"_s), QStringList(u"-"_s));
}

void LedgerTest::comboListsKeysInOrder()
{
    const TestLedger ledger;
    ledger.addMember(2, u"ก"_s, u"0"_s);
    ledger.addMember(1, u"ฮ"_s, u"0"_s);
    ledger.run(u"INSERT INTO tblMember (MPK) VALUES (3)"_s);
    QCOMPARE(FillCombo(u"tblMember"_s, u"MPK"_s, u"Mname"_s),
             QStringList({u"-"_s, u"ฮ"_s, u"ก"_s, QString()}));
}

/// As in a Thai dictionary; where a Thai and a Latin letter meet, the Thai one is first.
void LedgerTest::namesStandInOneOrderOnEveryDesktop()
{
    const QStringList order{u"-"_s,      u"12"_s,     u"ก"_s,      u"เก"_s,  u"ข"_s,
                            u"ลูกค้า ก"_s, u"ลูกค้า a"_s, u"ลูกค้า B"_s, u"lek"_s, u"Somchai"_s};
    const TestLedger ledger;
    for (auto key = qint16(order.size()); --key > 0;)
        ledger.addMember(key, order[key], u"0"_s);
    QCOMPARE(FillCombo(u"tblMember"_s, u"Mname COLLATE ThaiOrder"_s, u"Mname"_s), order);
}

void LedgerTest::lookupOfAName_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint16>("key");
    QTest::addColumn<QStringList>("added");
    const QStringList none;
    QTest::newRow("nobody") << u"-"_s << qint16(0) << none;
    QTest::newRow("no name") << QString() << qint16(0) << none;
    QTest::newRow("a known name") << u"สมชาย"_s << qint16(3) << none;
    QTest::newRow("blanks after it") << u"สมชาย  "_s << qint16(3) << none;
    QTest::newRow("letters in the other case") << u"lEK"_s << qint16(5) << none;
    QTest::newRow("a new name is added once") << u"ใหม่"_s << qint16(6) << QStringList(u"6 ใหม่ 0"_s);
    QTest::newRow("an apostrophe") << u"O'Brien"_s << qint16(6) << QStringList(u"6 O'Brien 0"_s);
    QTest::newRow("a percent sign is no wildcard")
        << u"%"_s << qint16(6) << QStringList(u"6 % 0"_s);
}

void LedgerTest::lookupOfAName()
{
    QFETCH(QString, text);
    QFETCH(qint16, key);
    const TestLedger ledger;
    ledger.addMember(3, u"สมชาย"_s, u"10"_s);
    ledger.addMember(5, u"Lek"_s, u"10"_s);
    QCOMPARE(memberKey(text), key);
    QCOMPARE(memberKey(text), key);
    QTEST(ledger.run(u"SELECT MPK, Mname, Mpercen FROM tblMember WHERE MPK > 5"_s), "added");
}

void LedgerTest::lookupOfAKeyBeyond16BitsOverflows()
{
    const TestLedger ledger;
    ledger.addMember(40000, u"Lek"_s, u"0"_s);
    QCOMPARE(errorOf([] { memberKey(u"Lek"_s); }), Overflow);
    QCOMPARE(errorOf([] { memberKey(u"ใหม่"_s); }), Overflow);
    QCOMPARE(ledger.run(u"SELECT Mname FROM tblMember"_s), QStringList({u"-"_s, u"Lek"_s}));
}

void LedgerTest::ratesComeFromTheirOneRow()
{
    const TestLedger ledger;
    ledger.run(u"UPDATE tblMoney SET [3up]=1, [3tod]=2, [2up]=3, [2tod]=4, runup=5, [3down]=6, "
               "[2down]=7, rundown=8"_s);
    LoadMoney();
    ledger.run(u"UPDATE tblMoney SET [3up] = 40000"_s);
    QCOMPARE(errorOf(LoadMoney), Overflow);
    ledger.run(u"DELETE FROM tblMoney"_s);
    LoadMoney(); // without its row the rates stay as they were
    const QList<qint16> rates{Rate3up,   Rate3tod,  Rate2up,   Rate2tod,
                              Raterunup, Rate3down, Rate2down, Raterundown};
    QCOMPARE(rates, QList<qint16>({1, 2, 3, 4, 5, 6, 7, 8}));
}

QTEST_GUILESS_MAIN(LedgerTest)
#include "test_ledger.moc"
