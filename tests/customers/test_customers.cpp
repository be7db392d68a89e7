// SPDX-License-Identifier: MIT
// The page of customers under the keyer's hands.
#include "customers/form2.h"
#include "ledger/ledger.h"
#include "support/formtest.h"
#include "support/outcome.h"

#include <QClipboard>
#include <QGroupBox>

using namespace Qt::StringLiterals;

namespace {

const QString NoName = u"กรุณาระบุ ( ชื่อลูกค้า ) ที่ต้องการ  ก่อนเริ่มบันทึก"_s;
const QString NoTelephone = u"กรุณาระบุ ( เบอร์ติดต่อ ) ที่ต้องการ  ก่อนเริ่มบันทึก"_s;
const QString NoPercent = u"กรุณาระบุ ( ส่วนลด ) ที่ต้องการ  ก่อนเริ่มบันทึก"_s;
const QString Question = u"ยืนยันการลบข้อมูล, 2, Cancel"_s; // a warning
const QString Saved = u"บันทึก รายการ เข้าสู่ระบบงานฐานข้อมูลเรียบร้อย."_s;

} // namespace

class CustomersTest : public FormTest
{
    Q_OBJECT

private slots:
    void customerIsAddedByKeys();
    void addRefuses_data();
    void addRefuses();
    void unwantedCharactersAreTakenOut();
    void apostropheEndsWithTheReport();
    void longNameIsPickedWhole();
    void changeGoesByTheActiveRow_data();
    void changeGoesByTheActiveRow();
    void rowIsPickedByClickAndKey();
    void nameIsMendedInTheMiddle();
    void searchListsPartsOfNames_data();
    void searchListsPartsOfNames();
    void deleteSparesCustomersWithLines_data();
    void deleteSparesCustomersWithLines();
    void deleteKeyEditsInAField();

private:
    void prepare() override;
    void fill(const QString &name, const QString &telephone, const QString &percent)
    {
        control<QLineEdit>("Tname")->setText(name);
        control<QLineEdit>("Tber")->setText(telephone);
        control<QLineEdit>("Tpercen")->setText(percent);
    }
    void pick(int row)
    {
        auto *list = control<Spread>("fpSpread1");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(list->model()->index(row - 1, 2)).center());
    }
    QStringList names() const { return column(NameColumn); }
    QStringList stored() const
    {
        return m_ledger->run(u"SELECT MPK, Mname, Mber, Mpercen FROM tblMember WHERE MPK > 0"_s);
    }
};

void CustomersTest::prepare()
{
    m_ledger->addMember(1, u"สมชาย"_s, u"10"_s);
    m_ledger->addMember(2, u"แก้ว"_s, u"5"_s);
    m_ledger->addMember(3, u"Lek"_s, u"0"_s);
    show(std::make_unique<Form2>(m_progress, nullptr));
}

void CustomersTest::customerIsAddedByKeys()
{
    Hands::type(u"กมล"_s);
    Hands::press(Qt::Key_Return);
    Hands::type(u"0812345678"_s);
    Hands::press(Qt::Key_Return);
    Hands::type(u"15"_s);
    Hands::press(Qt::Key_Return);
    QCOMPARE(Hands::focus()->objectName(), u"Tname"_s);
    m_hands->answerNextWithOk();
    click("lvButtons_H0");
    QCOMPARE(m_hands->firstLook(), Question);
    QCOMPARE(m_hands->takeBoxes(),
             QStringList({u"คุณแน่ใจว่าต้องการเพิ่มข้อมูล \n\n[ กมล ][ 0812345678 ][ 15 %]"_s, Saved}));
    QCOMPARE(stored().last(), u"4 กมล 0812345678 15"_s);
    QCOMPARE(names(), QStringList({u" กมล"_s, u" แก้ว"_s, u" สมชาย"_s, u" Lek"_s}));
    QCOMPARE(control<QGroupBox>("Frame1")->title(), u"มีข้อมูลลูกค้าทั้งหมด :  4  รายการ"_s);
    QCOMPARE(control<Spread>("fpSpread1")->text(1, TelephoneColumn), u"00812345678"_s);
    QCOMPARE(text("Tname") + text("Tber") + text("Tpercen"), QString());
}

void CustomersTest::addRefuses_data()
{
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QString>("words");
    const auto taken = [](const QString &name) {
        return u"มี ชื่อลูกค้า [  "_s + name + u"  ] อยู่ในระบบแล้ว กรุณาแก้ไขใหม่ด้วย."_s;
    };
    QTest::newRow("no name") << QStringList({u"  "_s, u"1"_s, u"1"_s}) << NoName;
    QTest::newRow("no telephone") << QStringList({u"ก"_s, u""_s, u"1"_s}) << NoTelephone;
    QTest::newRow("a name on file") << QStringList({u" แก้ว "_s, u"1"_s, u"1"_s}) << taken(u"แก้ว"_s);
    QTest::newRow("in the other case")
        << QStringList({u"lEK"_s, u"1"_s, u"1"_s}) << taken(u"lEK"_s);
}

void CustomersTest::addRefuses()
{
    QFETCH(QStringList, fields);
    QFETCH(QString, words);
    fill(fields[0], fields[1], fields[2]);
    click("lvButtons_H0");
    QCOMPARE(m_hands->takeBoxes(), QStringList(words));
    QCOMPARE(stored().size(), 3);
    QCOMPARE(text("Tname"), fields[0]);
    click("lvButtons_H0"); // a second press is refused no less
    QCOMPARE(m_hands->takeBoxes(), QStringList(words));
}

void CustomersTest::unwantedCharactersAreTakenOut()
{
    fill(u" 50%*ลด😀กู้ "_s, u"081"_s, u""_s);
    click("lvButtons_H0"); // Enter answers Cancel
    QCOMPARE(stored().size(), 3);
    m_hands->answerNextWithOk();
    click("lvButtons_H0");
    QCOMPARE(m_hands->takeBoxes().size(), 3);
    QCOMPARE(stored().last(), u"4 50ลด😀กู้ 081 0"_s);
}

void CustomersTest::apostropheEndsWithTheReport()
{
    fill(u"O'Brien"_s, u"1"_s, u"1"_s);
    QCOMPARE(endStatus([this] { click("lvButtons_H0"); }), 1);
    const QStringList boxes = m_hands->takeBoxes();
    QVERIFY(boxes.value(0).startsWith(u"Run-time error '-2147467259 (80004005)': "_s));
    QVERIFY(!LedgerConnection);
}

void CustomersTest::longNameIsPickedWhole()
{
    const QString longest(129, u'ก');
    control<QLineEdit>("Tname")->clear();
    Hands::type(longest + u"ข"_s); // one more than fits
    control<QLineEdit>("Tber")->setText(u"0123456789"_s);
    m_hands->answerNextWithOk();
    click("lvButtons_H0");
    m_hands->takeBoxes();
    pick(1);
    QCOMPARE(text("Tname"), u' ' + longest);
    QCOMPARE(text("Tber"), u"00123456789"_s);
    control<QLineEdit>("Tname")->setFocus();
    Hands::press(Qt::Key_End);
    Hands::type(u"ข"_s);
    QCOMPARE(text("Tname"), u' ' + longest);
}

void CustomersTest::changeGoesByTheActiveRow_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("refusal");
    QTest::addColumn<QString>("question");
    QTest::addColumn<QString>("row");
    QTest::newRow("telephone") << QByteArray("lvButtons_H1") << QByteArray("Tber") << NoTelephone
                               << u"คุณแน่ใจว่าต้องการแก้ไขเบอร์ ของ \n\n[ ใคร ][ 7 ][ 5 %]"_s
                               << u"1 สมชาย 7 10"_s;
    QTest::newRow("discount") << QByteArray("lvButtons_H3") << QByteArray("Tpercen") << NoPercent
                              << u"คุณแน่ใจว่าต้องการแก้ไขส่วนลด ของ \n\n[ ใคร ][ 0 ][ 7 %]"_s
                              << u"1 สมชาย  7"_s;
}

void CustomersTest::changeGoesByTheActiveRow()
{
    QFETCH(QByteArray, button);
    QFETCH(QByteArray, field);
    QFETCH(QString, question);
    pick(1);
    QCOMPARE(text("Tname"), u" แก้ว"_s);
    control<Spread>("fpSpread1")->setActiveRow(2); // of another customer than the fields show
    control<QLineEdit>("Tname")->setText(u"ใคร"_s);
    control<QLineEdit>(field)->setText(u" "_s);
    click(button);
    QTEST(m_hands->takeBoxes().join(u'\n'), "refusal");
    QCOMPARE(Hands::focus()->objectName(), QString::fromLatin1(field));
    control<QLineEdit>(field)->setText(u"7"_s);
    m_hands->answerNextWithOk();
    click(button);
    QCOMPARE(m_hands->firstLook(), Question);
    QCOMPARE(m_hands->takeBoxes(), QStringList(question));
    QTEST(stored().first(), "row");
    QCOMPARE(text("Tname"), u"ใคร"_s); // the fields keep their text
    QCOMPARE(control<Spread>("fpSpread1")->activeRow(), 2);
}

void CustomersTest::rowIsPickedByClickAndKey()
{
    auto *list = control<Spread>("fpSpread1");
    list->setFocus();
    Hands::press(Qt::Key_Space); // the row that is active already
    QCOMPARE(text("Tname"), u" แก้ว"_s);
    Hands::press(Qt::Key_Down);
    QCOMPARE(text("Tname"), u" สมชาย"_s);
    fill(u"x"_s, u"1"_s, u"1"_s);
    pick(2);
    QCOMPARE(text("Tname"), u" สมชาย"_s);
}

void CustomersTest::nameIsMendedInTheMiddle()
{
    control<QLineEdit>("Tname")->setText(u"กมล"_s);
    Hands::press(Qt::Key_Home);
    Hands::type(u"xy"_s);
    QCOMPARE(text("Tname"), u"xyกมล"_s);
    QApplication::clipboard()->setText(u"a\nb\tc"_s);
    control<QLineEdit>("Tname")->paste();
    QCOMPARE(text("Tname"), u"xyabcกมล"_s);
    Hands::type(u"d"_s);
    QCOMPARE(text("Tname"), u"xyabcdกมล"_s);
}

void CustomersTest::searchListsPartsOfNames_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("listed");
    QTest::newRow("a part in the middle") << u"ก้"_s << QStringList(u" แก้ว"_s);
    QTest::newRow("in the other case") << u" lE"_s << QStringList(u" Lek"_s);
    QTest::newRow("unwanted characters alone list all")
        << u"'%*"_s << QStringList({u" แก้ว"_s, u" สมชาย"_s, u" Lek"_s});
    QTest::newRow("nobody") << u"ซซ"_s << QStringList();
}

void CustomersTest::searchListsPartsOfNames()
{
    QFETCH(QString, typed);
    pick(1);
    control<QLineEdit>("text1")->setText(typed);
    control<QLineEdit>("text1")->setFocus();
    Hands::press(Qt::Key_Return);
    QTEST(names(), "listed");
    if (names().isEmpty())
        QCOMPARE(
            m_hands->takeBoxes(),
            QStringList(u"ไม่พบ ข้อมูล ที่คุณต้องการค้นหาในระบบ โปรดลองอีกครั้ง ( กด F5 เพื่อ รีโหลดข้อมูล ).."_s));
    QCOMPARE(text("Tname"), QString());
    QVERIFY(control<QGroupBox>("Frame1")->title().contains(
        names().isEmpty() ? u"3"_s : QString::number(names().size()))); // the last list's count
    click("lvButtons_H1"); // with an empty list it asks nothing
    m_hands->takeBoxes();
    Hands::press(Qt::Key_F5);
    QCOMPARE(names().size(), 3);
    QCOMPARE(text("text1"), QString());
}

void CustomersTest::deleteSparesCustomersWithLines_data()
{
    QTest::addColumn<QString>("table");
    QTest::newRow("in the book") << u"tblNumber"_s;
    QTest::newRow("laid off") << u"tblNumberCut"_s;
}

void CustomersTest::deleteSparesCustomersWithLines()
{
    QFETCH(QString, table);
    m_ledger->run(u"INSERT INTO %1 (NameFK) VALUES (2)"_s.arg(table));
    pick(1);
    Hands::press(Qt::Key_Delete);
    QCOMPARE(m_hands->takeBoxes(),
             QStringList(u"ไม่สามารถลบได้ ( ลูกค้ารายนี้มีรายการซื้อในงวดนี้ ) โปรดลบข้อมูลงวดนี้ก่อน . . ."_s));
    pick(2);
    m_hands->answerNextWithOk();
    Hands::press(Qt::Key_Delete);
    QCOMPARE(m_hands->firstLook(), Question);
    QCOMPARE(m_hands->takeBoxes(), QStringList({u"คุณแน่ใจว่าต้องการลบข้อมูล \n\n[ สมชาย ]"_s,
                                                u"ทำการ ลบข้อมูล ออกจากระบบเรียบร้อยแล้ว."_s}));
    QCOMPARE(stored(), QStringList({u"2 แก้ว  5"_s, u"3 Lek  0"_s}));
    QCOMPARE(text("Tname"), QString());
    QCOMPARE(control<Spread>("fpSpread1")->activeRow(), 1);
}

void CustomersTest::deleteKeyEditsInAField()
{
    pick(2);
    for (const char *field : {"Tname", "Tber", "text1"}) {
        control<QLineEdit>(field)->setText(u"12"_s);
        control<QLineEdit>(field)->setFocus();
        Hands::press(Qt::Key_Home);
        Hands::press(Qt::Key_Delete);
        QCOMPARE(text(field), u"2"_s);
        Hands::press(Qt::Key_End);
        Hands::press(Qt::Key_Delete); // nothing left to delete is no reason to delete a customer
    }
}

int main(int argc, char **argv)
{
    return runFormTest<CustomersTest>(argc, argv);
}
#include "test_customers.moc"
