// SPDX-License-Identifier: MIT
// The Ledger file: what it takes to open it, that nothing in it is lost or shown to strangers, and
// the helpers that all rooms share.
#include "ledger/ledger.h"
#include "ledger/schema.h"
#include "platform/programfolder.h"
#include "shell/globals.h"
#include "support/boxscript.h"
#include "support/outcome.h"
#include "support/testledger.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

/// Bytes of a Ledger, or of an empty database, after the stock tool ran @p sql on it.
QByteArray made(bool ledger, const QString &password, const QString &sql)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"made"_s);
    if (ledger)
        makeEmptyLedger(path);
    runStockTool(path, password, sql);
    return bytesOf(path);
}

QString refusal(const QString &path, const QByteArray &password = LedgerPassword)
{
    return errorOf([&] { Connection::open(path, password); });
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
    void refusedFileStaysUntouched_data();
    void refusedFileStaysUntouched();
    void wrongPasswordLeavesAWaitingJournal();
    void whatCannotBeWrittenIsRefused_data();
    void whatCannotBeWrittenIsRefused();
    void failedConnectionTellsWhyAndEnds();
    void openFileIsClosedToOthers();
    void fileIsEncryptedAndTheStockToolReadsIt();
    void textNeverBecomesASecondStatement();
    void nextKeyFollowsTheLargest();
    void rowIsEditedInPlace();
    void comboListsKeysInOrder();
    void lookupOfAName_data();
    void lookupOfAName();
    void lookupOfNobodyTouchesNoTable();
    void lookupOfAKeyBeyond16BitsOverflows();
    void ratesComeFromTheirOneRow();
    void namesSortAsInAThaiDictionary();
};

void LedgerTest::refusedFileStaysUntouched_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("password");
    QTest::addColumn<QString>("words");
    const QString key = u"639417"_s;
    const QString foreign = u"not a database"_s;
    const QString notes = u"CREATE TABLE notes (line TEXT);"_s;
    const QByteArray ledger = made(true, key, {});
    const auto row = [&](const char *name, const QByteArray &bytes, const QString &words) {
        QTest::newRow(name) << bytes << key.toLatin1() << words;
    };
    QByteArray noise(8192, '\0');
    QRandomGenerator(1).fillRange(reinterpret_cast<quint32 *>(noise.data()), noise.size() / 4);
    row("an empty file", {}, foreign);
    row("noise", noise, foreign);
    row("a plain database", made(false, {}, notes), foreign);
    row("another program's database under our password", made(false, key, notes), foreign);
    row("a foreign mark", made(true, key, u"PRAGMA application_id = 1;"_s), foreign);
    row("a lost table", made(true, key, u"DROP TABLE tblNumLog;"_s), foreign);
    QByteArray dead = ledger;
    dead[ledger.size() - 1500] = char(~dead[ledger.size() - 1500]); // in a page of rows
    row("one byte turned in a page of rows", dead, u"malformed"_s);
    row("a torn last page", ledger.chopped(100), u"malformed"_s);
    row("cut off in the middle", ledger.first(ledger.size() / 2), u"malformed"_s);
    row("the last page lost", ledger.chopped(1024), u"malformed"_s);
    QTest::newRow("a wrong password") << ledger << QByteArray("639418") << foreign;
}

void LedgerTest::refusedFileStaysUntouched()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, password);
    QFETCH(QString, words);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"book"_s);
    writeBytes(path, bytes);
    QVERIFY2(refusal(path, password).contains(words), qPrintable(words));
    QCOMPARE(bytesOf(path), bytes);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(u"book"_s));
}

void LedgerTest::wrongPasswordLeavesAWaitingJournal()
{
    const TestLedger ledger;
    ledger.addMember(1, u"สมชาย"_s, u"10"_s);
    // What stands on the disk now is what a power cut would leave.
    const QByteArray file = bytesOf(ledger.path());
    const QByteArray journal = bytesOf(ledger.path() + u"-wal"_s);
    QVERIFY(!journal.isEmpty());
    const QTemporaryDir folder;
    const QString refused = folder.filePath(u"refused"_s);
    const QString opened = folder.filePath(u"opened"_s);
    for (const QString &copy : {refused, opened}) {
        writeBytes(copy, file);
        writeBytes(copy + u"-wal"_s, journal);
    }
    QVERIFY(refusal(refused, "639418").contains(u"not a database"_s));
    QCOMPARE(bytesOf(refused), file);
    QCOMPARE(bytesOf(refused + u"-wal"_s), journal);
    const ResultRows found = Connection::open(opened)->run(u"SELECT Mname FROM tblMember"_s);
    QCOMPARE(found.rows, QList<QVariantList>({{u"-"_s}, {u"สมชาย"_s}}));
}

void LedgerTest::whatCannotBeWrittenIsRefused_data()
{
    QTest::addColumn<QString>("readOnly");
    QTest::newRow("a read-only file would fail at the first ticket") << u"/book"_s;
    QTest::newRow("a read-only folder has no place for the journal") << QString();
}

void LedgerTest::whatCannotBeWrittenIsRefused()
{
    QFETCH(QString, readOnly);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"book"_s);
    makeEmptyLedger(path);
    const auto readable = QFile::ReadOwner | QFile::ExeOwner;
    QVERIFY(QFile::setPermissions(folder.path() + readOnly, readable));
    QString words;
    withPlainRights([&] { words = refusal(path); });
    QFile::setPermissions(folder.path(), readable | QFile::WriteOwner);
    QVERIFY2(words.contains(u"readonly"_s), qUtf8Printable(words));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(u"book"_s));
}

void LedgerTest::failedConnectionTellsWhyAndEnds()
{
    const BoxScript script;
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"data"_s));
    setProgramFolder(folder.path());
    QCOMPARE(endStatus(ConnectLedger), 1);
    setProgramFolder({});
    QCOMPARE(script.texts(), QStringList(u"เชื่อมต่อฐานข้อมูลไม่ได้ : unable to open database file"_s));
    QCOMPARE(script.boxes().first().style.icon, BoxIcon::None);
    QCOMPARE(script.boxes().first().style.buttons, BoxButtons::Ok);
    QCOMPARE(script.boxes().first().title, u"Mirakla Desk"_s);
    QVERIFY(QDir(folder.filePath(u"data"_s)).isEmpty()); // opening never creates
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

void LedgerTest::nextKeyFollowsTheLargest()
{
    const TestLedger ledger;
    QCOMPARE(nextKey(u"tblNumber"_s, u"NPK"_s), 1);
    ledger.run(u"INSERT INTO tblNumber (NPK) VALUES (7), (1)"_s);
    QCOMPARE(nextKey(u"tblNumber"_s, u"NPK"_s), 8);
}

void LedgerTest::rowIsEditedInPlace()
{
    const TestLedger ledger;
    RecordsetA.openRow(u"tblMoney"_s, u"PK"_s, 1);
    RecordsetA.set(u"[3up]"_s, 550);
    RecordsetA.set(u"rundown"_s, 5);
    RecordsetA.update();
    RecordsetA.close();
    QCOMPARE(ledger.run(u"SELECT [3up], [3tod], rundown FROM tblMoney"_s),
             QStringList(u"550 100 5"_s));
    ledger.run(u"DELETE FROM tblMoney"_s);
    QCOMPARE(errorOf([] { RecordsetA.openRow(u"tblMoney"_s, u"PK"_s, 1); }),
             u"Run-time error '-2147467259 (80004005)': no current row"_s);
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

void LedgerTest::lookupOfAName_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint16>("key");
    QTest::addColumn<QStringList>("added");
    const QStringList none;
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

void LedgerTest::lookupOfNobodyTouchesNoTable()
{
    const TestLedger ledger;
    ledger.run(u"DROP TABLE tblMember"_s); // any statement on it would raise
    QCOMPARE(memberKey(u"-"_s), qint16(0));
    QCOMPARE(memberKey({}), qint16(0));
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

void LedgerTest::namesSortAsInAThaiDictionary()
{
    const TestLedger ledger;
    const QStringList sorted{u"กมล"_s, u"เก่ง"_s, u"แก้ว"_s, u"โก้"_s, u"ใกล้"_s,
                             u"ไก่"_s,  u"ขจร"_s, u"แดง"_s, u"ต้น"_s};
    for (qsizetype at = sorted.size(); at > 0; --at)
        ledger.addMember(int(sorted.size() - at) + 1, sorted[at - 1], u"0"_s);
    QCOMPARE(ledger.run(u"SELECT Mname FROM tblMember WHERE MPK > 0 "
                        "ORDER BY Mname COLLATE ThaiOrder"_s),
             sorted);
}

QTEST_GUILESS_MAIN(LedgerTest)
#include "test_ledger.moc"
