// SPDX-License-Identifier: MIT
// The dialog of settings: rates and hot numbers under the keyer's hands.
#include "settings/hotnumberlist.h"
#include "settings/setting.h"
#include "shell/globals.h"
#include "support/formtest.h"
#include "support/outcome.h"

using namespace Qt::StringLiterals;

namespace {

const QString Question = u"ยืนยันการลบข้อมูล, 2, Cancel"_s; // a warning

} // namespace

class SettingsTest : public FormTest
{
    Q_OBJECT

private slots:
    void todFormListsEachOrderOnce_data();
    void todFormListsEachOrderOnce();
    void ratesAreWalkedAndStored();
    void emptyRateIsRefused();
    void hotNumbersComeAndGo();
    void hotNumberIsRefused_data();
    void hotNumberIsRefused();
    void keyBeyond16BitsOverflows();
    void endingsAskTheirBoardAndTheirUser();

private:
    void prepare() override;
    QStringList listed() const
    {
        QStringList rows;
        const auto *list = control<Spread>("fpSpread1");
        for (int row = 1; row <= list->rows(); ++row)
            rows += list->text(row, HotNumberColumn) + u": "_s + list->text(row, HotTodColumn);
        return rows;
    }
};

void SettingsTest::prepare()
{
    LoadMoney();
    show(std::make_unique<Setting>(nullptr, [] { return false; }));
}

void SettingsTest::todFormListsEachOrderOnce_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("form");
    const auto row = [](const QString &number, const QString &form) {
        QTest::newRow(qUtf8Printable(u'"' + number + u'"')) << number << form;
    };
    row(u"12"_s, u"12 , 21"_s);
    row(u"22"_s, u"-"_s);
    row(u"012"_s, u"012 , 021 , 102 , 120 , 201 , 210"_s);
    row(u"112"_s, u"112 , 211 , 121"_s);
    row(u"121"_s, u"121 , 211 , 112"_s);
    row(u"122"_s, u"122 , 212 , 221"_s);
    row(u"000"_s, u"-"_s);
    row(u"1"_s, QString());
    row(u"1234"_s, QString());
    row(QString(), QString());
}

void SettingsTest::todFormListsEachOrderOnce()
{
    QFETCH(QString, number);
    QTEST(hotTodForm(number), "form");
}

void SettingsTest::ratesAreWalkedAndStored()
{
    auto *first = control<QLineEdit>("text1");
    QCOMPARE(first->text(), u"500"_s);
    first->setFocus();
    first->selectAll();
    Hands::type(u"0"_s);
    QStringList walked;
    for (int at = 0; at < 8; ++at) {
        walked += Hands::focus()->objectName();
        Hands::press(Qt::Key_Return);
    }
    QCOMPARE(walked.join(u' '), u"text1 text3 text2 text4 text5 text6 text7 text8"_s);
    click("lvButtons_H2"); // Enter answers Cancel
    QCOMPARE(Rate3up, qint16(500));
    first->setText(u"00"_s);
    m_hands->takeBoxes();
    clickOk("lvButtons_H2");
    QCOMPARE(m_hands->firstLook(), u"ยืนยันการบันทึกข้อมูล, 1, Cancel"_s);
    QCOMPARE(m_hands->takeBoxes().last(), u"บันทึก รายการ เข้าสู่ระบบงานฐานข้อมูลเรียบร้อย."_s);
    QCOMPARE(Rate3up, qint16(0)); // counts at once
    QCOMPARE(first->text(), u"0"_s);
    QCOMPARE(m_ledger->run(u"SELECT * FROM tblMoney"_s),
             QStringList(u"1 0 100 70 12 3 100 70 4"_s));
}

void SettingsTest::emptyRateIsRefused()
{
    control<QLineEdit>("text4")->clear();
    click("lvButtons_H2");
    QCOMPARE(m_hands->takeBoxes(), QStringList(u"กรุณาระบุ ( อัตราจ่าย ) ให้ครบทุกช่อง ก่อนเริ่มบันทึก"_s));
    QCOMPARE(Hands::focus()->objectName(), u"text4"_s);
}

void SettingsTest::hotNumbersComeAndGo()
{
    click("lvButtons_H4"); // nothing to delete, nothing asked
    click("lvButtons_H5");
    for (const auto &number : {u"12"_s, u"021"_s, u"21"_s}) {
        control<QLineEdit>("text9")->setFocus();
        Hands::type(number);
        m_hands->answerNextWithOk();
        Hands::press(Qt::Key_Return);
        QCOMPARE(m_hands->firstLook(), u"ยืนยันการเพิ่มข้อมูล, 1, Cancel"_s);
        QCOMPARE(m_hands->takeBoxes(),
                 QStringList(u"คุณแน่ใจว่าต้องการเพิ่ม \n\n[  เลขดัง ][ =  "_s + number + u" ]"_s));
    }
    QCOMPARE(listed(), QStringList({u"21: 21 , 12"_s, u"021: 021 , 012 , 201 , 210 , 102 , 120"_s,
                                    u"12: 12 , 21"_s}));
    control<Spread>("fpSpread1")->setActiveRow(2);
    control<Spread>("fpSpread1")->setFocus();
    Hands::press(Qt::Key_Return); // presses no button
    clickOk("lvButtons_H4");
    QCOMPARE(m_hands->firstLook(), Question);
    QCOMPARE(m_hands->takeBoxes(), QStringList({u"คุณแน่ใจว่าต้องการลบข้อมูล \n\n[  เลขดัง ][  021  ]"_s,
                                                u"ทำการ ลบข้อมูล ออกจากระบบเรียบร้อยแล้ว."_s}));
    QCOMPARE(listed(), QStringList({u"21: 21 , 12"_s, u"12: 12 , 21"_s}));
    clickOk("lvButtons_H5");
    QCOMPARE(m_hands->firstLook(), Question);
    QCOMPARE(m_hands->takeBoxes(),
             QStringList({u"คุณแน่ใจว่าต้องการลบข้อมูล (  เลขดัง !! ) ออกทั้งหมด แน่ใจ?"_s,
                          u"ลบข้อมูลทั้งหมดเสร็จสิ้นแล้ว . . . . ."_s}));
    QCOMPARE(listed(), QStringList());
}

void SettingsTest::hotNumberIsRefused_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<QStringList>("boxes");
    QTest::newRow("none") << u""_s << QStringList(u"กรุณาระบุ ( เลข ) ที่ต้องการ  ก่อนเริ่มบันทึก"_s);
    QTest::newRow("one digit")
        << u"5"_s
        << QStringList(u"ไม่สามารถบันทึกได้ ( เลขต้อง มีตั้งแต่ สองหลัก ขึ้นไป ) โปรดทำการแก้ไข ก่อนเริ่มบันทึก"_s);
    QTest::newRow("one listed already, after the question")
        << u"12"_s
        << QStringList({u"คุณแน่ใจว่าต้องการเพิ่ม \n\n[  เลขดัง ][ =  12 ]"_s,
                        u"ไม่สามารถบันทึกได้ ( มีเลขนี้อยู่ใน ระบบ แล้ว !! ) โปรดทำการแก้ไข ก่อนเริ่มบันทึก"_s});
}

void SettingsTest::hotNumberIsRefused()
{
    QFETCH(QString, number);
    addHotNumber(u"12"_s);
    control<QLineEdit>("text9")->setText(number);
    clickOk("lvButtons_H3");
    QTEST(m_hands->takeBoxes(), "boxes");
    QCOMPARE(control<QLineEdit>("text9")->text(), number);
    QCOMPARE(m_ledger->run(u"SELECT * FROM tblNumberFix"_s), QStringList(u"1 12"_s));
}

void SettingsTest::keyBeyond16BitsOverflows()
{
    m_ledger->run(u"INSERT INTO tblNumberFix (PK) VALUES (32767)"_s);
    QCOMPARE(errorOf([] { addHotNumber(u"12"_s); }), u"Run-time error '6': Overflow"_s);
}

void SettingsTest::endingsAskTheirBoardAndTheirUser()
{
    click("lvButtons_H0");
    click("lvButtons_H1"); // Enter answers Cancel
    QCOMPARE(m_hands->takeBoxes(),
             QStringList({u"ไม่สามารถลบข้อมูลได้ ( ไม่มีข้อมูลเลข ) อยู่ในฐานข้อมูล . . . . ."_s,
                          u"คุณแน่ใจว่าต้องการลบข้อมูล ( ทั้งหมด ) ออกจาก ฐานข้อมูล แน่ใจ?"_s}));
}

int main(int argc, char **argv)
{
    return runFormTest<SettingsTest>(argc, argv);
}
#include "test_settings.moc"
