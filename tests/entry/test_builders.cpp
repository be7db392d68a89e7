// SPDX-License-Identifier: MIT
// The builders: keyed lines in, rows of the ticket and refusals out.
#include "entry/builders.h"
#include "support/boxscript.h"
#include "support/keying.h"
#include "support/outcome.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Keys lines such as "บน 123-50" one after the other.
void keyLines(Ticket &ticket, const QStringList &lines)
{
    for (const QString &line : lines)
        keyLine(ticket, line.section(u' ', 0, -2), line.section(u' ', -1));
}

} // namespace

class BuildersTest : public QObject
{
    Q_OBJECT

private slots:
    void linesBecomeRows_data();
    void linesBecomeRows();
    void refusedLineAddsNothing_data();
    void refusedLineAddsNothing();
    void refusalKeepsTheTabOfTheLastGoodLine();
    void totalsOverflowInsteadOfWrapping();
};

void BuildersTest::linesBecomeRows_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QStringList>("rows");
    const auto row = [](const char *name, const QStringList &lines, const QStringList &rows) {
        QTest::newRow(name) << lines << rows;
    };
    row("the newest number stands on top", {u"บน 123-50"_s, u"บน 456-50"_s},
        {u"1: 456=50"_s, u"1: 123=50"_s});
    row("a number merges where it stands, past the comma",
        {u"บน 12-50"_s, u"บน 34-5"_s, u"บน 12-1000"_s, u"บน 12-7"_s},
        {u"3: 34=5"_s, u"3: 12=1,057"_s});
    row("leading zeros make another number", {u"บน 012-5"_s, u"บน 12-5"_s},
        {u"1: 012=5"_s, u"3: 12=5"_s});
    row("leading zeros of an amount do not", {u"บน 12-007"_s}, {u"3: 12=7"_s});
    row("a row goes beyond the limit of one line", {u"ล่าง 12-60000"_s, u"ล่าง 12-60000"_s},
        {u"7: 12=120,000"_s});
    row("the full amount on both, straight and tod", {u"ตรง+โต๊ด 12-9"_s, u"ตรง+โต๊ด 121-9"_s},
        {u"1: 121=9"_s, u"2: 121=9"_s, u"3: 12=9"_s, u"4: 12=9"_s});
    row("the full amount on both sides, one digit too",
        {u"บน+ล่าง 5-100"_s, u"บน+ล่าง 55-10"_s, u"บน+ล่าง 555-1"_s},
        {u"1: 555=1"_s, u"3: 55=10"_s, u"5: 5=100"_s, u"6: 555=1"_s, u"7: 55=10"_s, u"8: 5=100"_s});
    row("a straight number may repeat its digit", {u"บน 55-10"_s, u"ล่าง 111-1"_s},
        {u"3: 55=10"_s, u"6: 111=1"_s});
    row("all other orders of three digits", {u"กลับบน 123-100-20"_s},
        {u"1: 132=20"_s, u"1: 213=20"_s, u"1: 231=20"_s, u"1: 312=20"_s, u"1: 321=20"_s,
         u"1: 123=100"_s});
    row("a pair in front has three orders", {u"กลับล่าง 112-100-20"_s},
        {u"6: 121=20"_s, u"6: 211=20"_s, u"6: 112=100"_s});
    row("a pair outside", {u"กลับบน 121-100-20"_s},
        {u"1: 112=20"_s, u"1: 211=20"_s, u"1: 121=100"_s});
    row("a pair at the end", {u"กลับบน 122-100-20"_s},
        {u"1: 212=20"_s, u"1: 221=20"_s, u"1: 122=100"_s});
    row("two digits turned on top", {u"กลับบน 12-100-20"_s}, {u"3: 21=20"_s, u"3: 12=100"_s});
    row("the doors of 0 on the bottom", {u"19 ประตู (ล่าง) 0-1"_s},
        {u"7: 90=1"_s, u"7: 80=1"_s, u"7: 70=1"_s, u"7: 60=1"_s, u"7: 50=1"_s, u"7: 40=1"_s,
         u"7: 30=1"_s, u"7: 20=1"_s, u"7: 10=1"_s, u"7: 09=1"_s, u"7: 08=1"_s, u"7: 07=1"_s,
         u"7: 06=1"_s, u"7: 05=1"_s, u"7: 04=1"_s, u"7: 03=1"_s, u"7: 02=1"_s, u"7: 01=1"_s,
         u"7: 00=1"_s});
    row("the doubles on top", {u"00-99 (บน) -5"_s},
        {u"3: 99=5"_s, u"3: 88=5"_s, u"3: 77=5"_s, u"3: 66=5"_s, u"3: 55=5"_s, u"3: 44=5"_s,
         u"3: 33=5"_s, u"3: 22=5"_s, u"3: 11=5"_s, u"3: 00=5"_s});
    row("two digits turned", {u"กลับล่าง 12-100-20"_s}, {u"7: 21=20"_s, u"7: 12=100"_s});
    row("a group keyed again adds each to its own", {u"กลับบน 122-100-20"_s, u"กลับบน 122-100-20"_s},
        {u"1: 212=40"_s, u"1: 221=40"_s, u"1: 122=200"_s});
    row("a row found goes stale once another is inserted above it",
        {u"บน 321-10"_s, u"กลับบน 123-100-20"_s},
        {u"1: 132=20"_s, u"1: 213=20"_s, u"1: 231=20"_s, u"1: 312=20"_s, u"1: 123=120"_s,
         u"1: 321=10"_s});
    row("the doors of a digit, the double once, the full amount on each",
        {u"บน 55-10"_s, u"19 ประตู (บน) 5-100"_s},
        {u"3: 95=100"_s, u"3: 85=100"_s, u"3: 75=100"_s, u"3: 65=100"_s, u"3: 45=100"_s,
         u"3: 35=100"_s, u"3: 25=100"_s, u"3: 15=100"_s, u"3: 05=100"_s, u"3: 59=100"_s,
         u"3: 58=100"_s, u"3: 57=100"_s, u"3: 56=100"_s, u"3: 54=100"_s, u"3: 53=100"_s,
         u"3: 52=100"_s, u"3: 51=100"_s, u"3: 50=100"_s, u"3: 55=110"_s});
    row("the doubles", {u"00-99 (ล่าง) -500"_s},
        {u"7: 99=500"_s, u"7: 88=500"_s, u"7: 77=500"_s, u"7: 66=500"_s, u"7: 55=500"_s,
         u"7: 44=500"_s, u"7: 33=500"_s, u"7: 22=500"_s, u"7: 11=500"_s, u"7: 00=500"_s});
    row("runs", {u"วิ่งบน 0-10"_s, u"วิ่งล่าง 0-99999"_s}, {u"5: 0=10"_s, u"8: 0=99,999"_s});
}

void BuildersTest::linesBecomeRows()
{
    QFETCH(QStringList, lines);
    const BoxScript script;
    Ticket ticket;
    keyLines(ticket, lines);
    QTEST(rowsOf(ticket), "rows");
    // The tab shown is that of the kind keyed last; both sides together show the top.
    const QString kind = lines.last().section(u' ', 0, -2);
    QCOMPARE(ticket.ShowTopTab, kind == u"บน+ล่าง"_s || !kind.contains(u"ล่าง"_s));
    QCOMPARE(script.texts(), QStringList());
}

void BuildersTest::refusedLineAddsNothing_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("words");
    const QString noNumber = u"กรุณาระบุ ( เลข ) ที่ต้องการ  ก่อนเริ่มบันทึก"_s;
    const QString noAmount = u"กรุณาระบุ ( จำนวนเงิน ) ที่ต้องการ  ก่อนเริ่มบันทึก"_s;
    const QString tail = u" ) โปรดทำการแก้ไข ก่อนเริ่มบันทึก"_s;
    const QString twoDigits = u"ไม่สามารถบันทึกได้ ( เลขต้องมีอย่างน้อย 2 หลัก"_s + tail;
    const QString threeDigits = u"ไม่สามารถบันทึกได้ ( เลขมีได้สูงสุดเพียง 3 หลัก"_s + tail;
    const QString oneDigit = u"ไม่สามารถบันทึกได้ ( เลขมีได้สูงสุดเพียง 1 หลัก"_s + tail;
    const QString oneBaht = u"ไม่สามารถบันทึกได้ ( จำนวนเงิน ขั้นต่ำ = 1 บาท"_s + tail;
    const QString tooMuch = u"ไม่สามารถบันทึกได้ ( จำนวนเงิน สูงสุด = 99,999 บาท"_s + tail;
    const QString allEqual =
        u"ไม่สามารถเพิ่มเลขได้ ( เนื่องจากตัวเลขซ้ำกันหมด ) โปรดบันทึกเป็นประเภท ตรง แทน.."_s;
    const QString dashes = u"ไม่สามารถเพิ่มเลขได้ เลขกลับที่ถูกต้อง ( เลข-จำนวนเงินหลัก-จำนวนเงินลอง ) "
                           "โปรดลองอีกครั้ง.. "_s;
    const auto row = [](const QString &line, const QString &words) {
        QTest::newRow(qUtf8Printable(line)) << line << words;
    };
    row(u"บน -50"_s, noNumber);
    row(u"บน -"_s, noNumber);
    row(u"บน 5-100"_s, twoDigits);
    row(u"โต๊ด 1234-"_s, threeDigits); // the number is looked at before the amount
    row(u"บน+ล่าง 1234-5"_s, threeDigits);
    row(u"วิ่งบน 12-5"_s, oneDigit);
    row(u"โต๊ด 555-0"_s, allEqual); // the digits are looked at before the amount
    row(u"ตรง+โต๊ด 55-10"_s, allEqual);
    row(u"บน 12-"_s, noAmount);
    row(u"ล่าง 12-00"_s, oneBaht);
    row(u"บน 12-100000"_s, tooMuch);
    row(u"วิ่งล่าง 1-000100"_s, tooMuch); // digits are counted, whatever they say
    row(u"บน 1-2-3"_s, dashes);
    row(u"กลับบน 123-10"_s, dashes);
    row(u"กลับบน 123-10-20-5"_s, dashes);
    row(u"กลับบน 7-10-20"_s, twoDigits);
    row(u"กลับล่าง 22-10-20"_s, allEqual);
    row(u"กลับบน 123-10-"_s, noAmount);
    row(u"กลับบน 123-0-20"_s, oneBaht); // either amount has to be good
    row(u"กลับบน 123-10-0"_s, oneBaht);
    row(u"19 ประตู (บน) 55-10"_s, oneDigit);
    row(u"19 ประตู (ล่าง) -10"_s, noNumber);
    row(u"00-99 (บน) 12-"_s, u"ไม่สามารถบันทึกได้ ( 00-99 ไม่ต้องใส่เลข ให้ใส่จำนวนเงิน เช่น -500 ) "
                             "โปรดทำการแก้ไข ก่อนเริ่มบันทึก"_s); // before the amount is looked at
    row(u"00-99 (บน) -"_s, noAmount);
}

void BuildersTest::refusedLineAddsNothing()
{
    QFETCH(QString, line);
    QFETCH(QString, words);
    const BoxScript script;
    Ticket ticket;
    keyLines(ticket, {line});
    QCOMPARE(script.texts(), QStringList(words));
    QCOMPARE(script.boxes().first().title, u"รายงานสถานะ"_s);
    QCOMPARE(script.boxes().first().style.icon, BoxIcon::Exclamation);
    QVERIFY(ticket.isEmpty());
}

void BuildersTest::refusalKeepsTheTabOfTheLastGoodLine()
{
    const BoxScript script;
    Ticket ticket;
    keyLines(ticket, {u"บน+ล่าง 12-5"_s});
    QVERIFY(ticket.ShowTopTab); // bottom is written first, and the top is shown
    keyLines(ticket, {u"ล่าง 5-5"_s});
    QVERIFY(ticket.ShowTopTab);
    keyLines(ticket, {u"ล่าง 55-5"_s});
    QVERIFY(!ticket.ShowTopTab);
}

void BuildersTest::totalsOverflowInsteadOfWrapping()
{
    Ticket ticket;
    ticket.writeLine(0, -1, u"123"_s, u"2147483647"_s);
    QCOMPARE(topTotal(ticket.totalGrids()), 2147483647);
    ticket.writeLine(1, -1, u"123"_s, u"1"_s);
    QCOMPARE(errorOf([&] { topTotal(ticket.totalGrids()); }), u"Run-time error '6': Overflow"_s);
    ticket.writeLine(0, 1, u"123"_s, u"1"_s); // a row itself has no limit
    QCOMPARE(ticket.grids[0].text(1, AmountColumn), u"2,147,483,648"_s);
}

QTEST_GUILESS_MAIN(BuildersTest)
#include "test_builders.moc"
