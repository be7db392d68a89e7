// SPDX-License-Identifier: MIT
// The builders: the texts that refuse a line, and totals beyond 32 bits. The rows of good lines are
// compared with the model.
#include "entry/builders.h"
#include "support/boxscript.h"
#include "support/keying.h"
#include "support/outcome.h"

#include <QTest>

using namespace Qt::StringLiterals;

class BuildersTest : public QObject
{
    Q_OBJECT

private slots:
    void refusedLineAddsNothing_data();
    void refusedLineAddsNothing();
    void totalsOverflowInsteadOfWrapping();
};

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
    keyLine(ticket, line.section(u' ', 0, -2), line.section(u' ', -1));
    QCOMPARE(script.texts(), QStringList(words));
    QCOMPARE(script.boxes().first().title, u"รายงานสถานะ"_s);
    QCOMPARE(script.boxes().first().style.icon, BoxIcon::Exclamation);
    QVERIFY(ticket.isEmpty());
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
