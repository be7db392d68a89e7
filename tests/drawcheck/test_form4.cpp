// SPDX-License-Identifier: MIT
// The page of the draw check under the agent's hands: seventeen digits, two books, two amounts.
#include "drawcheck/form4.h"
#include "ledger/ledger.h"
#include "shell/globals.h"
#include "support/formtest.h"
#include "support/outcome.h"

#include <QLabel>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

const QString NoDigit = u"กรุณาระบุ ( เลข ) ที่ต้องการ  ก่อนประมวลผล"_s;
const QString DigitsOnly = u"ช่องนี้ กรอกได้แค่ ( ตัวเลข ) เท่านั้น !!"_s;
const QString NothingToPrint = u"ไม่สามารถส่งออกได้ ( ไม่มีข้อมูลในตาราง ) โปรดลองใหม่อีกครั้ง . .  ."_s;
const QString Result = u"12345678901234567"_s;

} // namespace

class Form4Test : public FormTest
{
    Q_OBJECT

private slots:
    void missingDigitIsShown_data();
    void missingDigitIsShown();
    void filledBoxIsKeyedOver();
    void otherBookStartsEmpty();
    void failureShowsHowFarItCame();
    void printsOnlyWhatIsThere();

private:
    void prepare() override;
    QString amounts() const
    {
        return control<QLabel>("Label19")->text() + u" / "_s + control<QLabel>("Label21")->text();
    }
    int rows() const { return control<Spread>("fpSpread1")->rows(); }
    void makePage(Form4::Printer printer = {})
    {
        show(std::make_unique<Form4>(m_progress, std::move(printer), nullptr));
        form()->setFocus();
    }
};

void Form4Test::prepare()
{
    m_ledger->addMember(1, u"สมชาย"_s, u"10"_s);
    m_ledger->run(u"INSERT INTO tblNumber (NameFK, num23, updown, numType, numValue, numBuy)"
                  " VALUES (1, 3, -1, 1, '123', 60), (1, 3, -1, 1, '999', 99940)"_s);
    LoadMoney();
    makePage();
}

void Form4Test::missingDigitIsShown_data()
{
    QTest::addColumn<QString>("keyed");
    QTest::addColumn<QStringList>("boxes");
    QTest::addColumn<QString>("focus");
    QTest::newRow("none") << QString() << QStringList(NoDigit) << u"text4"_s;
    QTest::newRow("the last of a prize")
        << u"12345678901234"_s << QStringList(NoDigit) << u"Text19"_s;
    QTest::newRow("a refused key has moved on")
        << u"12x45678901234567"_s << QStringList({DigitsOnly, NoDigit}) << u"text6"_s;
    QTest::newRow("a blank") << QString(u" 2345678901234567"_s)
                             << QStringList({DigitsOnly, NoDigit}) << u"text4"_s;
}

void Form4Test::missingDigitIsShown()
{
    QFETCH(QString, keyed);
    QFETCH(QString, focus);
    Hands::type(Result);
    click("Command18");
    click("lvButtons_H1");
    QCOMPARE(amounts(), u"30,000 / 70,000"_s); // what was found stays
    QCOMPARE(rows(), 1);
    Hands::type(keyed);
    click("Command18");
    QTEST(m_hands->takeBoxes(), "boxes");
    QCOMPARE(Hands::focus()->objectName(), focus);
    QCOMPARE(amounts(), u"0 / 0"_s); // before anything else
    QCOMPARE(rows(), 1);             // of the run before
}

void Form4Test::filledBoxIsKeyedOver()
{
    Hands::type(Result);
    Hands::click(control<QLineEdit>("text5"));
    Hands::type(u"98"_s);
    QCOMPARE(control<QLineEdit>("text5")->text(), u"9"_s);
    QCOMPARE(control<QLineEdit>("text6")->text(), u"8"_s);
    Hands::press(Qt::Key_Backspace); // empties its box and moves on as well
    QCOMPARE(control<QLineEdit>("text8")->text(), QString());
    QCOMPARE(Hands::focus()->objectName(), u"text9"_s);
    for (int press = 0; press < 2; ++press) // moves on as well, but not past the end of a prize
        Hands::press(Qt::Key_Return);
    QCOMPARE(Hands::focus()->objectName(), u"text10"_s);
}

void Form4Test::otherBookStartsEmpty()
{
    m_ledger->run(u"INSERT INTO tblNumberCut SELECT * FROM tblNumber"_s);
    Hands::type(Result);
    click("Command18");
    control<QRadioButton>("Option2")->click();
    QCOMPARE(amounts(), u"0 / 0"_s);
    QCOMPARE(rows(), 0);
    click("Command18"); // the digits have stayed
    QCOMPARE(amounts(), u"เลขคัดออก / เลขคัดออก"_s);
    QCOMPARE(rows(), 1);
    control<QRadioButton>("Option1")->click();
    QCOMPARE(amounts(), u"0 / 0"_s);
}

void Form4Test::failureShowsHowFarItCame()
{
    m_ledger->run(u"UPDATE tblMoney SET [3up] = 0"_s);
    LoadMoney();
    Hands::type(Result);
    const auto status = endStatus([&] { click("Command18"); });
    QCOMPARE(m_hands->takeBoxes(), QStringList(u"Run-time error '13': Type mismatch"_s));
    QCOMPARE(status, 1);
    QCOMPARE(amounts(), u"0 / 100,000"_s);
    QCOMPARE(control<Spread>("fpSpread1")->text(1, WinPayoutColumn), QString());
}

void Form4Test::printsOnlyWhatIsThere()
{
    QString printed;
    makePage([&](const DrawCheck &check, QWidget *) { printed = check.Label19; });
    click("lvButtons_H5");
    QCOMPARE(m_hands->takeBoxes(), QStringList(NothingToPrint));
    Hands::click(control<QLineEdit>("text4"));
    Hands::type(Result);
    click("Command18");
    click("lvButtons_H5");
    QCOMPARE(printed, u"30,000"_s);
}

int main(int argc, char **argv)
{
    return runFormTest<Form4Test>(argc, argv);
}
#include "test_form4.moc"
