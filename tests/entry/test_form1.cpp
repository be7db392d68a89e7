// SPDX-License-Identifier: MIT
// The page of bet entry under the keyer's hands: real keys, clicks and boxes.
#include "entry/form1.h"
#include "ledger/ledger.h"
#include "support/formtest.h"
#include "support/outcome.h"
#include "widgets/combo.h"
#include "widgets/tabstrip.h"
#include "widgets/workprogress.h"

#include <QCheckBox>
#include <QInputMethodEvent>
#include <QLabel>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

const QString Prompt = u"คลิกเพื่อใส่เลขใหม่"_s;

} // namespace

class Form1Test : public FormTest
{
    Q_OBJECT

private slots:
    void lineIsKeyedWithEnterAlone();
    void refusedLineStaysForCorrection();
    void lineWithoutAKindSendsToTheKinds();
    void halfTypedLineIsLostWithTheFocus();
    void customerIsTakenAfterTheFirstLine();
    void customerIsWhoTheTicketIsFiledFor();
    void discountFollowsEachLine();
    void nameIsCompletedAndTakenBack();
    void spelledOutNameIsChosen();
    void composedNameIsCompleted();
    void wheelChangesNothing();
    void oneLineIsRemoved();
    void ticketIsCleared();
    void saveAsksAndResets();
    void failedSaveEndsWithTheReport();

private:
    void prepare() override;
    QStringList tabs() const
    {
        const auto *strip = control<TabStrip>("SSTab1");
        return {strip->tabText(0), strip->tabText(1)};
    }
    void choose(const char *combo, int index) { control<Combo>(combo)->setListIndex(index); }
    void key(const QString &line)
    {
        Hands::click(control<QLineEdit>("Tnumber"));
        Hands::type(line);
        Hands::press(Qt::Key_Return);
    }

    WorkProgress m_bar;
};

void Form1Test::prepare()
{
    m_ledger->addMember(1, u"สมชาย"_s, u"10"_s);
    m_ledger->addMember(2, u"สมหญิง"_s, u"0"_s);
    show(std::make_unique<Form1>(m_bar, nullptr));
}

void Form1Test::lineIsKeyedWithEnterAlone()
{
    QCOMPARE(Hands::focus()->objectName(), u"Tnumber"_s); // from the start
    QCOMPARE(tabs(), QStringList({u"   ล่าง ( ยอดรวม 0 )"_s, u"   บน ( ยอดรวม 0 )"_s}));
    choose("Combo2", 3);
    control<QCheckBox>("C01")->setChecked(true); // on a machine without sound
    Hands::type(u"12-1000"_s);
    Hands::press(Qt::Key_Enter); // of the key pad
    Hands::type(u"123-5"_s);
    Hands::press(Qt::Key_Return);
    QCOMPARE(text("Tnumber"), QString());
    QCOMPARE(control<Spread>("fpSpread7")->text(1, 2), u"1,000"_s);
    QCOMPARE(control<Spread>("fpSpread6")->text(-999, 2), u"5"_s);
    QCOMPARE(tabs(), QStringList({u"   ล่าง ( ยอดรวม 1,005 )"_s, u"   บน ( ยอดรวม  )"_s}));
    QCOMPARE(text("text1"), u"1,005"_s);
    QVERIFY(control<Spread>("fpSpread6")->isVisible()); // the tab of the line is shown
    QVERIFY(!control<Spread>("fpSpread1")->isVisible());
}

void Form1Test::refusedLineStaysForCorrection()
{
    choose("Combo2", 1);
    Hands::type(u"123"_s);
    Hands::press(Qt::Key_Return);
    QCOMPARE(m_hands->takeBoxes(),
             QStringList(u"ไม่สามารถเพิ่มเลขได้ ( รูปแบบตัวเลข - ) ไม่ถูกต้อง !! โปรดลองอีกครั้ง.. "_s));
    QCOMPARE(text("Tnumber"), u"123"_s);
    Hands::type(u"-4a"_s);
    QCOMPARE(m_hands->takeBoxes(), QStringList(u"ช่องนี้ กรอกได้แค่ (ตัวเลข) เท่านั้น !!"_s));
    QCOMPARE(text("Tnumber"), u"123-4"_s);
    Hands::press(Qt::Key_Return);
    QCOMPARE(control<Spread>("fpSpread1")->text(1, 2), u"4"_s);
}

void Form1Test::lineWithoutAKindSendsToTheKinds()
{
    choose("Combo2", 8); // a separator is no kind
    QCOMPARE(control<QLabel>("Label3")->text(), u"ประเภท"_s);
    Hands::type(u"12-5"_s);
    Hands::press(Qt::Key_Return);
    QCOMPARE(m_hands->takeBoxes(),
             QStringList(u"ไม่สามารถเพิ่มเลขได้ ( โปรดเลือกประเภทของตัวเลข ) โปรดลองอีกครั้ง.. "_s));
    QCOMPARE(Hands::focus()->objectName(), u"Combo2"_s);
    QCOMPARE(text("Tnumber"), Prompt);
    choose("Combo2", 1);
    QCOMPARE(Hands::focus()->objectName(), u"Tnumber"_s);
    QCOMPARE(text("Tnumber"), QString());
}

void Form1Test::halfTypedLineIsLostWithTheFocus()
{
    Hands::type(u"12"_s);
    control<Spread>("fpSpread1")->setFocus();
    QCOMPARE(text("Tnumber"), Prompt);
    QCOMPARE(control<QLineEdit>("Tnumber")->palette().base().color(), QColor(0xFF, 0xC0, 0xC0));
    Hands::click(control<QLineEdit>("Tnumber"));
    QCOMPARE(text("Tnumber"), QString());
    QCOMPARE(control<QLineEdit>("Tnumber")->palette().base().color(), QColor(0xDB, 0xE2, 0xE0));
}

void Form1Test::customerIsTakenAfterTheFirstLine()
{
    choose("Combo2", 1);
    choose("Combo1", 1);
    QCOMPARE(text("Tname"), u"ยังไม่เลือกลูกค้า"_s);
    key(u"12-1000"_s);
    QCOMPARE(control<Combo>("Combo1")->currentText(), QString());
    QCOMPARE(control<Combo>("Combo1")->listIndex(), -1);
    choose("Combo1", 1);
    QCOMPARE(text("Tname"), u"สมชาย"_s);
    QCOMPARE(text("text2"), u"10"_s);
    QCOMPARE(text("text3"), u"100"_s);
}

void Form1Test::customerIsWhoTheTicketIsFiledFor()
{
    m_ledger->addMember(3, u"lek11"_s, u"50"_s);
    m_ledger->addMember(4, u"lek_1"_s, u"5"_s);
    m_ledger->addMember(5, u"LEK_1"_s, u"90"_s);
    show(std::make_unique<Form1>(m_bar, nullptr));
    choose("Combo2", 1);
    key(u"12-1000"_s);
    for (const int chosen : {4, 5}) { // filed by name without regard to case
        choose("Combo1", chosen);
        QCOMPARE(text("Tname"), u"lek_1"_s);
        QCOMPARE(text("text3"), u"50"_s);
    }
}

void Form1Test::discountFollowsEachLine()
{
    choose("Combo2", 1);
    key(u"12-1000"_s);
    choose("Combo1", 1);
    key(u"13-500"_s);
    QCOMPARE(text("text1"), u"1,500"_s);
    QCOMPARE(text("text3"), u"150"_s);
    choose("Combo1", 2);
    QCOMPARE(text("text3"), QString()); // nothing per cent prints nothing
    key(u"-50"_s);
    QCOMPARE(m_hands->takeBoxes().size(), 1);
    QCOMPARE(text("Tnumber"), QString()); // a line that a builder refused is thrown away
    QCOMPARE(text("text1"), u"1,500"_s);
}

void Form1Test::nameIsCompletedAndTakenBack()
{
    const auto *names = control<Combo>("Combo1");
    choose("Combo2", 1);
    key(u"12-5"_s);
    Hands::press(Qt::Key_Tab);
    QCOMPARE(Hands::focus()->objectName(), u"Combo1"_s);
    Hands::type(u"ส"_s);
    QCOMPARE(names->currentText(), u"สมชาย"_s);
    QCOMPARE(names->lineEdit()->selectedText(), u"มชาย"_s);
    Hands::type(u"มห"_s);
    QCOMPARE(text("Tname"), u"สมหญิง"_s);
    Hands::press(Qt::Key_Backspace); // the proposed tail and one letter more
    QCOMPARE(names->currentText(), u"สม"_s);
    QCOMPARE(names->listIndex(), -1);
    Hands::type(u"ร"_s); // nobody's name
    QCOMPARE(names->currentText(), u"สมร"_s);
    click("lvButtons_H0");
    QCOMPARE(
        m_hands->takeBoxes(),
        QStringList(u"ไม่สามารถบันทึกได้ ( ชื่อลูกค้าไม่ถูกต้อง หรือ ไม่มีในระบบ )  โปรดลองใหม่อีกครั้ง . . ."_s));
}

void Form1Test::spelledOutNameIsChosen()
{
    m_ledger->addMember(3, u"สม"_s, u"5"_s);
    show(std::make_unique<Form1>(m_bar, nullptr));
    choose("Combo2", 1);
    key(u"12-1000"_s);
    Hands::press(Qt::Key_Tab);
    Hands::type(u"สม"_s); // the beginning of others that stand before it
    Hands::press(Qt::Key_Delete);
    QCOMPARE(control<Combo>("Combo1")->listIndex(), -1);
    Hands::press(Qt::Key_Return);
    QCOMPARE(Hands::focus()->objectName(), u"Tnumber"_s);
    QCOMPARE(text("Tname"), u"สม"_s);
    QCOMPARE(text("text3"), u"50"_s);
}

void Form1Test::composedNameIsCompleted()
{
    auto *names = control<Combo>("Combo1");
    names->setFocus();
    names->lineEdit()->clear();
    QInputMethodEvent composed;
    composed.setCommitString(u"สมห"_s);
    QApplication::sendEvent(names, &composed);
    QCOMPARE(names->currentText(), u"สมหญิง"_s);
    QCOMPARE(names->listIndex(), 2);
}

void Form1Test::wheelChangesNothing()
{
    choose("Combo2", 1);
    for (const char *name : {"Combo1", "Combo2"}) {
        auto *combo = control<Combo>(name);
        const int index = combo->listIndex();
        QWheelEvent wheel(combo->rect().center(), combo->mapToGlobal(combo->rect().center()), {},
                          {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(combo, &wheel);
        QCOMPARE(combo->listIndex(), index);
    }
}

void Form1Test::oneLineIsRemoved()
{
    choose("Combo2", 3);
    key(u"12-5"_s);
    key(u"34-5"_s);
    choose("Combo1", 1);
    click("lvButtons_H1"); // no grid was touched yet
    auto *grid = control<Spread>("fpSpread7");
    grid->setFocus();
    grid->setActiveRow(2);
    click("lvButtons_H1"); // Enter answers Cancel
    QCOMPARE(grid->rows(), 2);
    grid->setFocus();
    control<TabStrip>("SSTab1")->setTab(1); // hides the grid, which stays the one touched last
    m_hands->answerNextWithOk();
    click("lvButtons_H1");
    const QString question = u"คุณแน่ใจว่าต้องการลบข้อมูล ( เลข 12 ) ในหน้านี้ ?"_s;
    QCOMPARE(m_hands->takeBoxes(), QStringList({question, question}));
    QCOMPARE(grid->rows(), 1);
    QCOMPARE(text("text1"), u"5"_s);
    QVERIFY(grid->isVisible());
    QCOMPARE(Hands::focus()->objectName(), u"Tnumber"_s);
}

void Form1Test::ticketIsCleared()
{
    click("lvButtons_H2"); // nothing to clear, nothing asked
    choose("Combo2", 1);
    key(u"12-1000"_s);
    choose("Combo1", 1);
    m_hands->answerNextWithOk();
    click("lvButtons_H2");
    QCOMPARE(m_hands->takeBoxes(), QStringList(u"คุณแน่ใจว่าต้องการลบข้อมูล ( เลขทั้งหมด ) ในหน้านี้ ?"_s));
    QCOMPARE(control<Spread>("fpSpread3")->rows(), 0);
    QCOMPARE(tabs(), QStringList({u"   ล่าง ( ยอดรวม 0  )"_s, u"   บน ( ยอดรวม 0 )"_s}));
    QCOMPARE(text("text1"), u"1,000"_s); // stays until the next line
    QCOMPARE(text("Tname"), u"สมชาย"_s);
    key(u"-5"_s);
    m_hands->takeBoxes();
    QCOMPARE(text("text1"), QString());
    QCOMPARE(text("text3"), u"100"_s); // cannot be worked out of nothing
}

void Form1Test::saveAsksAndResets()
{
    choose("Combo1", 1);
    click("lvButtons_H0");
    choose("Combo2", 4);
    key(u"7-1000"_s);
    choose("Combo1", 1);
    click("lvButtons_H0"); // Enter answers OK
    QCOMPARE(m_hands->takeBoxes(),
             QStringList({u"ไม่สามารถบันทึกได้ ( โปรดเพิ่มข้อมูล เลข ก่อนการบันทึก ) โปรดทำการแก้ไข และ "
                          "ลองใหม่อีกครั้ง . . ."_s,
                          u"คุณแน่ใจว่าต้องการเพิ่มข้อมูล ตัวเลข เหล่านี้ ลงฐานข้อมูล ? . . ."_s}));
    QCOMPARE(m_ledger->run(u"SELECT NameFK, numValue, numBuy, rMoney FROM tblNumber, tblRMoney"_s),
             QStringList(u"1 7 1000 100"_s));
    QCOMPARE(control<Combo>("Combo1")->listIndex(), -1);
    QCOMPARE(QStringList({text("Tname"), text("text1"), text("text2"), text("text3")}),
             QStringList({u"ยังไม่เลือกลูกค้า"_s, u"0"_s, QString(), QString()}));
    QCOMPARE(tabs(), QStringList({u"   ล่าง ( ยอดรวม 0 )"_s, u"   บน ( ยอดรวม 0 )"_s}));
    QCOMPARE(control<QLabel>("Label3")->text(), u"วิ่งบน"_s);
    QVERIFY(m_bar.isHidden());
}

void Form1Test::failedSaveEndsWithTheReport()
{
    choose("Combo2", 1);
    key(u"12-5"_s);
    choose("Combo1", 1);
    m_ledger->run(u"DROP TABLE tblNumber"_s);
    QCOMPARE(endStatus([this] { click("lvButtons_H0"); }), 1);
    const QStringList boxes = m_hands->takeBoxes();
    QCOMPARE(boxes.size(), 2);
    QVERIFY2(boxes[1].startsWith(u"Run-time error '-2147467259 (80004005)': no such table"_s),
             qPrintable(boxes[1]));
    QVERIFY(!LedgerConnection);
}

int main(int argc, char **argv)
{
    qputenv("SDL_AUDIODRIVER", "none at all"); // keying goes on unhindered
    return runFormTest<Form1Test>(argc, argv);
}
#include "test_form1.moc"
