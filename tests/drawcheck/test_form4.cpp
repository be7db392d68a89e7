// SPDX-License-Identifier: MIT
// The page of the draw check under the agent's hands: seventeen digits, two books, two amounts.
#include "drawcheck/form4.h"
#include "ledger/ledger.h"
#include "platform/application.h"
#include "platform/pushbutton.h"
#include "platform/spread.h"
#include "shell/globals.h"
#include "support/hands.h"
#include "support/noprogress.h"
#include "support/outcome.h"
#include "support/testledger.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

const QString NoDigit = u"กรุณาระบุ ( เลข ) ที่ต้องการ  ก่อนประมวลผล"_s;
const QString DigitsOnly = u"ช่องนี้ กรอกได้แค่ ( ตัวเลข ) เท่านั้น !!"_s;
const QString NothingToPrint = u"ไม่สามารถส่งออกได้ ( ไม่มีข้อมูลในตาราง ) โปรดลองใหม่อีกครั้ง . .  ."_s;
const QString Result = u"12345678901234567"_s;

} // namespace

class Form4Test : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void digitsAreKeyedInOneRun();
    void missingDigitIsShown_data();
    void missingDigitIsShown();
    void filledBoxIsKeyedOver();
    void clearKeepsWhatWasFound();
    void otherBookStartsEmpty();
    void failureShowsHowFarItCame();
    void printsOnlyWhatIsThere();

private:
    template<typename Control>
    Control *control(const char *name) const
    {
        return m_page->findChild<Control *>(QLatin1String(name));
    }
    void click(const char *button) { Hands::click(control<PushButton>(button)); }
    QString amounts() const
    {
        return control<QLabel>("Label19")->text() + u" / "_s + control<QLabel>("Label21")->text();
    }
    int rows() const { return control<Spread>("fpSpread1")->rows(); }
    void makePage(Form4::Printer printer = {})
    {
        m_page.emplace(m_progress, std::move(printer), nullptr);
        m_page->show();
        m_page->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&*m_page));
    }

    std::optional<TestLedger> m_ledger;
    NoProgress m_progress;
    std::optional<Hands> m_hands;
    std::optional<Form4> m_page;
};

void Form4Test::init()
{
    m_ledger.emplace();
    m_ledger->addMember(1, u"สมชาย"_s, u"10"_s);
    m_ledger->run(u"INSERT INTO tblNumber (NameFK, num23, updown, numType, numValue, numBuy)"
                  " VALUES (1, 3, -1, 1, '123', 60), (1, 3, -1, 1, '999', 99940)"_s);
    LoadMoney();
    m_hands.emplace();
    makePage();
}

void Form4Test::cleanup()
{
    QCOMPARE(m_hands->takeBoxes(), QStringList());
    m_page.reset();
    m_hands.reset();
    m_ledger.reset();
}

void Form4Test::digitsAreKeyedInOneRun()
{
    Hands::type(Result);
    QCOMPARE(Hands::focus()->objectName(), u"Text21"_s);
    Hands::press(Qt::Key_Tab);
    Hands::press(Qt::Key_Return);
    QCOMPARE(amounts(), u"30,000 / 70,000"_s);
    QCOMPARE(rows(), 1);
    QCOMPARE(m_ledger->run(u"SELECT num3up, num3down1, num3down4, num2down FROM tblTrue"_s),
             QStringList(u"123 456 345 67"_s));
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
}

void Form4Test::clearKeepsWhatWasFound()
{
    Hands::type(Result);
    click("Command18");
    click("lvButtons_H1");
    QCOMPARE(Hands::focus()->objectName(), u"text4"_s);
    for (const auto *box : m_page->findChildren<QLineEdit *>())
        QCOMPARE(box->text(), QString());
    QCOMPARE(amounts(), u"30,000 / 70,000"_s);
    QCOMPARE(rows(), 1);
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
    QVERIFY(!control<PushButton>("lvButtons_H5")->isEnabled()); // nothing to print with
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
    const Application application(argc, argv);
    Form4Test test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_form4.moc"
