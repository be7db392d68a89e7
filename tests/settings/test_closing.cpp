// SPDX-License-Identifier: MIT
// The two endings: what they ask, what they delete, what they leave, and that the program is gone.
#include "ledger/ledger.h"
#include "settings/closing.h"
#include "support/boxscript.h"
#include "support/outcome.h"
#include "support/testledger.h"

#include <QFileInfo>
#include <QScopeGuard>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString AskClose = u"คุณแน่ใจว่าต้องการลบข้อมูล ( เลขทั้งหมดของงวดนี้ !! ) ออกทั้งหมด แน่ใจ?"_s;
const QString AskWipe = u"คุณแน่ใจว่าต้องการลบข้อมูล ( ทั้งหมด ) ออกจาก ฐานข้อมูล แน่ใจ?"_s;
const QString AskWipeAgain = u"โปรดยืนยันการ ( ลบข้อมูลออกทั้งหมด ) อีกครั้ง !!!!!!!! "_s;
const QString Closed = u"ลบข้อมูล เลขงวดนี้ ทั้งหมดเสร็จสิ้น ( โปรดเปิดโปรแกรมใหม่อีกครั้ง .. )"_s;
const QString Wiped = u"ลบข้อมูลทั้งหมดเสร็จสิ้นแล้ว ( โปรดเปิดโปรแกรมใหม่อีกครั้ง .. )"_s;
const QString NothingShown = u"ไม่สามารถลบข้อมูลได้ ( ไม่มีข้อมูลเลข ) อยู่ในฐานข้อมูล . . . . ."_s;

constexpr auto Yes = BoxAnswer::Ok;
constexpr auto No = BoxAnswer::Cancel;

} // namespace

Q_DECLARE_METATYPE(QList<BoxAnswer>)

class ClosingTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void comesBackWithNothingChanged_data();
    void comesBackWithNothingChanged();
    void endsWithWhatIsLeft_data();
    void endsWithWhatIsLeft();
    void nothingWaitsOutsideTheFile();
    void missingResultFailsAfterTheBookHasGone();

private:
    /// Rows of the eight tables, in the order of the schema.
    QString counts() const
    {
        QStringList counts;
        for (const char *table : {"tblMember", "tblNumber", "tblNumberCut", "tblNumberFix",
                                  "tblMoney", "tblRMoney", "tblTrue", "tblNumLog"})
            counts += m_ledger->run(u"SELECT count(*) FROM "_s + QLatin1String(table));
        return counts.join(u' ');
    }
    std::unique_ptr<TestLedger> m_ledger;
};

void ClosingTest::init()
{
    m_ledger = std::make_unique<TestLedger>();
    m_ledger->addMember(1, u"สมชาย"_s, u"10"_s);
    for (const auto &sql :
         {u"INSERT INTO tblNumber (numValue) VALUES ('12'), ('34')"_s,
          u"INSERT INTO tblNumberCut (numValue) VALUES ('12')"_s,
          u"INSERT INTO tblNumberFix (Fnumber) VALUES ('12')"_s,
          u"INSERT INTO tblRMoney (rMoney) VALUES (5)"_s,
          u"INSERT INTO tblNumLog (num3up) VALUES ('999')"_s,
          u"UPDATE tblTrue SET num3up = '012', num3down1 = '1', num3down2 = '2', num3down3 = '3',"
          " num3down4 = '4', num2down = '05', numdate = '2026-11-16', moneyup = -7,"
          " moneydown = 9"_s})
        m_ledger->run(sql);
}

void ClosingTest::cleanup()
{
    m_ledger.reset();
}

void ClosingTest::comesBackWithNothingChanged_data()
{
    QTest::addColumn<bool>("wipe");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<QList<BoxAnswer>>("answers");
    QTest::addColumn<QStringList>("boxes");
    QTest::newRow("a board that shows nothing")
        << false << false << QList<BoxAnswer>{} << QStringList(NothingShown);
    QTest::newRow("closing cancelled")
        << false << true << QList<BoxAnswer>{No} << QStringList(AskClose);
    QTest::newRow("wipe cancelled")
        << true << false << QList<BoxAnswer>{No} << QStringList(AskWipe);
    QTest::newRow("wipe cancelled at the second question")
        << true << false << QList<BoxAnswer>{Yes, No} << QStringList({AskWipe, AskWipeAgain});
}

void ClosingTest::comesBackWithNothingChanged()
{
    QFETCH(bool, wipe);
    QFETCH(bool, shown);
    QFETCH(QList<BoxAnswer>, answers);
    const BoxScript script(answers);
    const QString before = counts();
    QCOMPARE(endStatus([&] { wipe ? wipeLedger() : closeDraw([&] { return shown; }); }),
             std::nullopt);
    QTEST(script.texts(), "boxes");
    QCOMPARE(counts(), before);
    for (const Box &box : script.boxes()) {
        const bool question = box.style.buttons == BoxButtons::OkCancel;
        QCOMPARE(box.title, question ? u"ยืนยันการลบข้อมูล"_s : u"รายงานสถานะ"_s);
        QCOMPARE(box.style.icon, BoxIcon::Exclamation);
        QCOMPARE(box.style.preselected, question ? No : Yes);
    }
}

void ClosingTest::endsWithWhatIsLeft_data()
{
    QTest::addColumn<bool>("wipe");
    QTest::addColumn<QString>("left");
    QTest::addColumn<QStringList>("boxes");
    QTest::newRow("closing") << false << u"2 0 0 0 1 0 1 2"_s << QStringList({AskClose, Closed});
    QTest::newRow("wipe") << true << u"1 0 0 0 1 0 1 0"_s
                          << QStringList({AskWipe, AskWipeAgain, Wiped});
}

void ClosingTest::endsWithWhatIsLeft()
{
    QFETCH(bool, wipe);
    const BoxScript script({Yes, Yes});
    // In place of TestLedger's destructor the end of the program has to close the Ledger.
    QCOMPARE(endStatus([&] { wipe ? wipeLedger() : closeDraw([] { return true; }); }), 0);
    QTEST(script.texts(), "boxes");
    QCOMPARE(script.boxes().last().title, u"รายงานสถานะ"_s);
    QVERIFY(!LedgerConnection);
    QCOMPARE(m_ledger->files(), QStringList(u"ztkdata.ZDB"_s));
    ConnectLedger();
    QTEST(counts(), "left");
    QCOMPARE(m_ledger->run(u"SELECT * FROM tblTrue"_s),
             QStringList(u"1 012 1 2 3 4 05 2026-11-16 -7 9"_s));
    if (!wipe)
        QCOMPARE(m_ledger->run(u"SELECT * FROM tblNumLog WHERE PK = 2"_s),
                 QStringList(u"2 012 1 2 3 4 05 2026-11-16 -7 9"_s));
}

void ClosingTest::nothingWaitsOutsideTheFile()
{
    // While the last box is on the screen the machine may be switched off. What the journal then
    // held would be missing in the file, where the old rows would still stand.
    QList<qint64> journal;
    const auto before = setBoxShower([&](const Box &) {
        journal += QFileInfo(m_ledger->path() + u"-wal"_s).size();
        return Yes;
    });
    const auto restore = qScopeGuard([&] { setBoxShower(before); });
    QCOMPARE(endStatus([] { wipeLedger(); }), 0);
    QCOMPARE(journal.size(), 3);
    QVERIFY(journal.first() > 0);
    QCOMPARE(journal.last(), 0);
}

void ClosingTest::missingResultFailsAfterTheBookHasGone()
{
    const BoxScript script({Yes});
    m_ledger->run(u"DELETE FROM tblTrue"_s);
    QCOMPARE(errorOf([] { closeDraw([] { return true; }); }),
             u"Run-time error '-2147467259 (80004005)': no current row"_s);
    QCOMPARE(counts(), u"2 0 0 0 1 0 0 1"_s);
    QCOMPARE(script.texts(), QStringList(AskClose));
}

QTEST_GUILESS_MAIN(ClosingTest)
#include "test_closing.moc"
