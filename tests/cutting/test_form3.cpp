// SPDX-License-Identifier: MIT
// The board in the real program, under real keys and clicks.
#include "cutting/boardformtest.h"
#include "ledger/ledger.h"
#include "shell/globals.h"
#include "widgets/combo.h"
#include "widgets/tabstrip.h"
#include "widgets/workprogress.h"

#include <QLabel>
#include <QScrollBar>

using namespace Qt::StringLiterals;

class Form3Test : public BoardFormTest
{
    Q_OBJECT

private slots:
    void bookIsShownOnTheTopTab();
    void emptySideKeepsItsOldSum();
    void filterShowsOneCustomer();
    void filterThatFindsNothing_data();
    void filterThatFindsNothing();
    void failedLoaderIsAbandonedAlone();
    void percentThatIsNoNumberKeepsTheMoney();
    void numberIsFoundOnBothTabs();
    void reloadKeepsThePlace();
    void cutReloadsItsBoardAlone();
    void cutUnderTheFilterShowsTheWholeBook();
    void scanRunsBeforeTheStripGoes();
    void closingTheSettingsReloads();
    void leavingThePageHidesTheStrip();
    void buttonsOpenWhatTheyAreGiven();
    void enterOpensAfterAReload();
    void doubleClickOpensTheRowUnderTheMouse();
    void boardDecidesWhetherADrawCanBeClosed_data();
    void boardDecidesWhetherADrawCanBeClosed();

private:
    template<typename Control>
    Control *banner(const char *name) const
    {
        return m_window->findChild<QWidget *>(u"Toolbar1"_s)
            ->findChild<Control *>(QLatin1String(name));
    }
    Form3 &page() const { return *static_cast<Form3 *>(form()); }
    QStringList strip() const
    {
        QStringList texts{banner<QWidget>("Frame6")->isVisible() ? u"shown"_s : u"hidden"_s};
        for (const char *field : {"Tname", "text2", "text3"})
            texts += banner<QLineEdit>(field)->text();
        return texts;
    }
    QString tabs() const
    {
        const auto *strip = control<TabStrip>("SSTab1");
        return strip->tabText(1) + strip->tabText(0) + QString::number(strip->tab());
    }
    /// What the filter shows, hides and disables.
    QString controls() const
    {
        QStringList states;
        for (const char *name : {"Combo1", "Frame5", "lvButtons_H7", "text2", "text3"}) {
            const auto *each = control<QWidget>(name);
            if (each->isVisible())
                states += QLatin1String(name) + (each->isEnabled() ? u""_s : u"-"_s);
        }
        return states.join(u' ');
    }
    void filter(const QString &name)
    {
        control<Combo>("Combo1")->setFocus();
        Hands::type(name);
        Hands::press(Qt::Key_Return);
    }
    void confirm(QWidget *dialog, const QString &amount)
    {
        dialog->findChild<Spread *>()->setFocus();
        Hands::press(Qt::Key_Space);
        auto *field = dialog->findChild<QLineEdit *>(u"text1"_s);
        field->setFocus();
        field->clear();
        Hands::type(amount);
        m_hands->answerNextWithOk();
        Hands::press(Qt::Key_Return);
    }
};

void Form3Test::bookIsShownOnTheTopTab()
{
    QCOMPARE(tabs(), u"   บน ( ยอดรวม 1,700 )   ล่าง ( ยอดรวม 340 )1"_s);
    QCOMPARE(text("text2"), u"2,040"_s);
    QCOMPARE(text("text3"), u"ยอดรวม บนและล่าง"_s);
    QCOMPARE(controls(), u"Combo1 Frame5 text2 text3"_s);
    const auto *names = control<Combo>("Combo1");
    QCOMPARE(names->count(), 2); // only who holds a bet
    QCOMPARE(names->itemText(1), u"สมหญิง"_s);
    QCOMPARE(control<QLabel>("Label31")->text(), u"750,000"_s);
    QVERIFY(grid(5)->isVisible() && !grid(6)->isVisible());
    QVERIFY(grid(1)->isColumnHidden(3) && grid(1)->isColumnHidden(4));
    Hands::press(Qt::Key_F5); // nothing without a filter
    QCOMPARE(total(1), u"1,700"_s);
}

void Form3Test::emptySideKeepsItsOldSum()
{
    m_ledger->run(u"DELETE FROM tblNumber WHERE updown = -1"_s);
    page().FReLoad();
    QCOMPARE(tabs(), u"   บน ( ยอดรวม  )   ล่าง ( ยอดรวม 340 )1"_s);
    QCOMPARE(text("text2"), u"2,040"_s);
    m_ledger->run(u"DELETE FROM tblNumber"_s);
    page().FReLoad();
    QCOMPARE(control<Combo>("Combo1")->count(), 2); // the list before the last line went
}

void Form3Test::filterShowsOneCustomer()
{
    filter(u"สมห"_s); // completed from the list
    QCOMPARE(strip(), QStringList({u"shown"_s, u"สมหญิง"_s, u"5"_s, u"37"_s}));
    QCOMPARE(tabs(), u"   บน ( ยอดรวม 700 )   ล่าง ( ยอดรวม 40 )1"_s);
    QCOMPARE(controls(), u"lvButtons_H7 text2- text3-"_s);
    QCOMPARE(text("text2"), u"2,040"_s); // not the customer's
    QCOMPARE(Hands::focus()->objectName(), u"fpSpread1"_s);
    banner<QLineEdit>("Tname")->setFocus(); // outside the page
    Hands::press(Qt::Key_F5);
    QVERIFY(page().isAncestorOf(Hands::focus()));
    QCOMPARE(controls(), u"Combo1 Frame5 text2 text3"_s);
    QCOMPARE(strip(), QStringList({u"hidden"_s, {}, {}, {}}));
    QVERIFY(!MemberFilterOn);
    QCOMPARE(total(1), u"1,700"_s);
}

void Form3Test::filterThatFindsNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("percent");
    QTest::addColumn<QString>("box");
    const QString nothing = u"ไม่พบข้อมูล ลูกค้ารายนี้ ( ไม่ได้ซื้อเลขใด ๆ ใน งวดนี้  ) . . ."_s;
    QTest::newRow("nobody") << u"ไม่มี"_s << QString()
                            << u"ไม่พบชื่อลูกค้ารายนี้ อยู่ใน ฐานข้อมูล โปรดลองใหม่อีกครั้ง ..."_s;
    QTest::newRow("no bets") << u"นารี"_s << u"5"_s << nothing;
    QTest::newRow("part of a name") << u"าย"_s << u"10"_s << nothing;
    QTest::newRow("empty, which finds the row 0") << QString() << u"0"_s << nothing;
}

void Form3Test::filterThatFindsNothing()
{
    QFETCH(QString, name);
    QFETCH(QString, percent);
    QFETCH(QString, box);
    filter(name);
    QCOMPARE(m_hands->takeBoxes(), QStringList(box));
    const bool found = !percent.isEmpty();
    QCOMPARE(MemberFilterOn, found);
    QCOMPARE(strip(), found ? QStringList({u"shown"_s, name, percent, {}})
                            : QStringList({u"hidden"_s, {}, {}, {}}));
    QCOMPARE(controls(), found ? u"lvButtons_H7 text2- text3-"_s : u"Combo1 Frame5 text2 text3"_s);
    QCOMPARE(total(1), found ? u"0"_s : u"1,700"_s);
    if (!found)
        QCOMPARE(control<Combo>("Combo1")->currentText(), name); // for correction
}

void Form3Test::failedLoaderIsAbandonedAlone()
{
    m_ledger->run(u"UPDATE tblNumber SET numBuy = 3000000000 WHERE numValue = '456'"_s);
    filter(u"สมห"_s);
    QCOMPARE(total(1), u"0"_s);
    QCOMPARE(control<QLabel>("Label31")->text(), u"750,000"_s); // as before
    QCOMPARE(total(8), u"40"_s);
    QCOMPARE(strip()[3], u"87"_s); // with the sum that the abandoned board had
    QVERIFY(!banner<QWidget>("pb1")->isVisible());
}

void Form3Test::percentThatIsNoNumberKeepsTheMoney()
{
    m_ledger->run(u"UPDATE tblMember SET Mpercen = '' WHERE MPK = 2"_s);
    banner<QLineEdit>("text3")->setText(u"123"_s);
    filter(u"สมห"_s);
    QCOMPARE(strip(), QStringList({u"shown"_s, u"สมหญิง"_s, {}, u"123"_s}));
}

void Form3Test::numberIsFoundOnBothTabs()
{
    control<QLineEdit>("text1")->setFocus();
    Hands::type(u"123"_s);
    Hands::press(Qt::Key_Return);
    QCOMPARE(grid(1)->activeRow(), 1);
    QCOMPARE(grid(6)->activeRow(), 1); // though it is hidden
    QVERIFY(grid(1)->isVisible());
    control<QLineEdit>("text1")->setText(u"456"_s);
    Hands::click(control<PushButton>("lvButtons_H3"));
    QCOMPARE(grid(1)->activeRow(), 2);
    control<QLineEdit>("text1")->setText(u"  "_s);
    Hands::click(control<PushButton>("lvButtons_H3"));
    QCOMPARE(Hands::focus()->objectName(), u"text1"_s);
}

void Form3Test::reloadKeepsThePlace()
{
    m_ledger->run(u"WITH RECURSIVE n(i) AS (SELECT 100 UNION ALL SELECT i + 1 FROM n WHERE i < 299)"
                  " INSERT INTO tblNumber (NameFK, num23, updown, numType, numValue, numBuy)"
                  " SELECT 1, 3, -1, 1, i, 1 FROM n"_s);
    static_cast<Form3 *>(form())->FReLoad();
    grid(1)->setActiveRow(3);
    grid(1)->verticalScrollBar()->setValue(100);
    m_ledger->run(u"UPDATE tblNumber SET numBuy = 2 WHERE numValue = '299'"_s);
    static_cast<Form3 *>(form())->FReLoad();
    QCOMPARE(grid(1)->activeRow(), 3);
    QCOMPARE(grid(1)->verticalScrollBar()->value(), 100);
}

void Form3Test::cutReloadsItsBoardAlone()
{
    cut(2, [](QWidget *) { QFAIL("an empty board opens nothing"); });
    m_hands->inNextDialog({});
    control<TabStrip>("SSTab1")->setTab(0);
    m_ledger->run(u"UPDATE tblNumber SET numBuy = 1 WHERE numValue = '7'"_s);
    cut(6, [this](QWidget *dialog) { confirm(dialog, u"100"_s); });
    m_hands->takeBoxes();
    QCOMPARE(total(6), u"200"_s);
    QCOMPARE(total(8), u"40"_s);                                         // stale
    QCOMPARE(tabs(), u"   บน ( ยอดรวม 1,700 )   ล่าง ( ยอดรวม 240 )0"_s); // the side that was cut
    QCOMPARE(text("text2"), u"1,940"_s);
    QCOMPARE(Hands::focus()->objectName(), u"fpSpread6"_s);
    QCOMPARE(grid(6)->activeRow(), 1);
}

void Form3Test::cutUnderTheFilterShowsTheWholeBook()
{
    filter(u"สมห"_s);
    QString listed;
    cut(1, [&](QWidget *dialog) {
        listed = dialog->findChild<Spread *>()->text(-1000, 5); // of all customers
        confirm(dialog, u"1"_s);
    });
    m_hands->takeBoxes();
    QCOMPARE(listed, u"1,500 บาท"_s);
    QCOMPARE(total(1), u"1,699"_s);
    QCOMPARE(controls(), u"Combo1 Frame5 text2 text3"_s);
    QCOMPARE(strip(), QStringList({u"hidden"_s, {}, {}, {}}));
    QVERIFY(MemberFilterOn);
    QCOMPARE(text("text2"), u"2,040"_s); // the strip was still shown when the boards were loaded
    Hands::press(Qt::Key_F5);
    QVERIFY(!MemberFilterOn);
    QCOMPARE(text("text2"), u"2,039"_s);
    filter(u"สมห"_s);
    control<TabStrip>("SSTab1")->setTab(0);
    cut(8, [](QWidget *) {}); // ends on the other side: its board is hidden
    QCOMPARE(Hands::focus()->objectName(), u"fpSpread1"_s);
}

void Form3Test::scanRunsBeforeTheStripGoes()
{
    filter(u"สมห"_s);
    m_ledger->run(u"DELETE FROM tblNumber WHERE numValue = '7'"_s);
    SelNumValue = u"456"_s;
    m_hands->inNextDialog([](QWidget *dialog) { dialog->close(); });
    QStringList atScan;
    page().showCutNum(m_window.get(), [&] { atScan = strip() + QStringList(total(8)); });
    QCOMPARE(atScan, QStringList({u"shown"_s, u"สมหญิง"_s, u"5"_s, u"37"_s, u"0"_s}));
    QCOMPARE(strip()[0], u"hidden"_s);
}

void Form3Test::closingTheSettingsReloads()
{
    filter(u"สมห"_s);
    for (const quint8 origin : {quint8(2), quint8(1)}) { // a scan is shown; then none
        CutOrigin = origin;
        m_hands->inNextDialog([](QWidget *dialog) { dialog->close(); });
        Hands::click(m_window->findChild<PushButton *>(u"lvButtons_H5"_s));
        QCOMPARE(total(1), origin == 1 ? u"1,700"_s : u"700"_s);
        QCOMPARE(controls(), u"lvButtons_H7 text2- text3-"_s);
        QCOMPARE(strip()[1], u"สมหญิง"_s);
    }
}

void Form3Test::leavingThePageHidesTheStrip()
{
    filter(u"สมห"_s);
    m_window->openPage(0);
    QCOMPARE(strip(), QStringList({u"hidden"_s, {}, {}, {}}));
    QVERIFY(MemberFilterOn);
    m_window->openPage(2);
    QCOMPARE(total(1), u"1,700"_s);
}

void Form3Test::buttonsOpenWhatTheyAreGiven()
{
    m_hands->inNextDialog([](QWidget *dialog) {
        QCOMPARE(dialog->objectName(), u"Fprint2"_s);
        dialog->close();
    });
    Hands::click(control<PushButton>("lvButtons_H5"));
    QVERIFY(grid(6)->isVisible()); // printing leaves the board there
    QStringList opened;
    QWidget panel;
    QLineEdit fields[3];
    CustomerStrip own(panel, fields[0], fields[1], fields[2]);
    Form3 board({*banner<WorkProgress>("pb1"), own},
                {[&](Form3 &) { opened += u"scan"_s; }, [&](Form3 &) { opened += u"print"_s; }, {}},
                nullptr);
    board.findChild<PushButton *>(u"lvButtons_H6"_s)->click();
    board.findChild<PushButton *>(u"lvButtons_H5"_s)->click();
    m_ledger->run(u"DELETE FROM tblNumber"_s);
    board.FReLoad();
    board.findChild<PushButton *>(u"lvButtons_H5"_s)->click();
    QCOMPARE(opened, QStringList({u"scan"_s, u"print"_s}));
    QCOMPARE(m_hands->takeBoxes(), QStringList(u"ไม่สามารถส่งออกได้ ( ไม่มีข้อมูลในตาราง ) "
                                               "โปรดลองใหม่อีกครั้ง . .  ."_s));
}

void Form3Test::enterOpensAfterAReload()
{
    filter(u"สมห"_s);
    grid(1)->setFocus();
    grid(1)->setActiveRow(2);
    m_ledger->run(u"DELETE FROM tblNumber WHERE numValue = '456'"_s);
    Hands::press(Qt::Key_F5);
    QCOMPARE(grid(1)->rows(), 1);
    bool opened = false;
    m_hands->inNextDialog([&](QWidget *dialog) {
        opened = true;
        dialog->close();
    });
    grid(1)->setFocus();
    Hands::press(Qt::Key_Return);
    QVERIFY(opened);
}

/// Its first half may have answered a box in front of the board.
void Form3Test::doubleClickOpensTheRowUnderTheMouse()
{
    QStringList opened;
    control<TabStrip>("SSTab1")->setTab(0);
    const auto doubleClick = [&](int number, int row) {
        m_hands->inNextDialog([&](QWidget *dialog) {
            opened += SelNumValue;
            dialog->close();
        });
        const QRect first = grid(number)->visualRect(grid(number)->model()->index(0, 1));
        QTest::mouseDClick(grid(number)->viewport(), Qt::LeftButton, {},
                           first.center() + QPoint(0, (row - 1) * first.height()));
    };
    doubleClick(8, 1); // no row is active yet
    doubleClick(8, 2); // and there is none
    QCOMPARE(opened, QStringList(u"7"_s));
    control<TabStrip>("SSTab1")->setTab(1);
    grid(1)->setActiveRow(1);
    doubleClick(1, 2);
    QCOMPARE(opened, QStringList({u"7"_s, u"456"_s}));
}

void Form3Test::boardDecidesWhetherADrawCanBeClosed_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("customer");
    QTest::addColumn<bool>("lines");
    QTest::addColumn<bool>("asked");
    QTest::newRow("the whole book") << 2 << QString() << true << true;
    QTest::newRow("a customer without bets, with bets of others") << 2 << u"นารี"_s << true << false;
    QTest::newRow("another page") << 0 << QString() << true << true;
    QTest::newRow("another page, an empty book") << 0 << QString() << false << false;
}

void Form3Test::boardDecidesWhetherADrawCanBeClosed()
{
    QFETCH(int, page);
    QFETCH(QString, customer);
    QFETCH(bool, lines);
    QFETCH(bool, asked);
    if (!customer.isEmpty())
        filter(customer);
    if (!lines)
        m_ledger->run(u"DELETE FROM tblNumber"_s);
    if (page != 2)
        m_window->openPage(page);
    m_hands->takeBoxes();
    m_hands->inNextDialog([](QWidget *dialog) {
        Hands::click(dialog->findChild<PushButton *>(u"lvButtons_H0"_s)); // Enter answers Cancel
        dialog->close();
    });
    Hands::click(m_window->findChild<PushButton *>(u"lvButtons_H5"_s));
    QCOMPARE(m_hands->takeBoxes(),
             QStringList(asked ? u"คุณแน่ใจว่าต้องการลบข้อมูล ( เลขทั้งหมดของงวดนี้ !! ) ออกทั้งหมด แน่ใจ?"_s
                               : u"ไม่สามารถลบข้อมูลได้ ( ไม่มีข้อมูลเลข ) อยู่ในฐานข้อมูล . . . . ."_s));
}

int main(int argc, char **argv)
{
    return runFormTest<Form3Test>(argc, argv);
}
#include "test_form3.moc"
