// SPDX-License-Identifier: MIT
// The cut-out in the real program, opened from the board, under real keys and clicks.
#include "cutting/boardformtest.h"
#include "cutting/cutnum.h"

using namespace Qt::StringLiterals;

class CutNumTest : public BoardFormTest
{
    Q_OBJECT

private slots:
    void amountIsChecked_data();
    void amountIsChecked();
    void activeRowIsCut();
    void slipOfTheMouseNamesTheActiveRow();
    void lineIsRemoved();
    void dialogClosesOnce_data();
    void dialogClosesOnce();
};

void CutNumTest::amountIsChecked_data()
{
    QTest::addColumn<bool>("chosen");
    QTest::addColumn<QString>("amount");
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("left"); // in the field
    const QString zero = u"ไม่สามารถคัดเลขได้ ( จำนวนเงินที่คุณระบุ = 0 ) โปรดลองใหม่อีกครั้ง . .. ."_s;
    QTest::newRow("no customer chosen")
        << false << u"5"_s << u"กรุณาเลือก ( ลูกค้าที่ต้องการคัดเลข ก่อน ) โปรดลองใหม่อีกครั้ง . . ."_s
        << u"5"_s;
    QTest::newRow("no amount") << true << u"  "_s
                               << u"กรุณาระบุ ( จำนวนเงิน ) ที่ต้องการคัดออก  ก่อนเริ่มบันทึก"_s << u"  "_s;
    QTest::newRow("zero") << true << u"0"_s << zero << u"0"_s;
    QTest::newRow("two zeros pass") << true << u"00"_s << u"คัดออกเป็นเงิน =  บาท"_s << u"00"_s;
    QTest::newRow("more than the line")
        << true << u"1001"_s
        << u"ไม่สามารถคัดเลขได้ ( จำนวนเงินที่คัดออกมีมากเกินไป ) โปรดลองใหม่อีกครั้ง . .. ."_s << u"1000"_s;
    QTest::newRow("part") << true << u"999"_s << u"คัดออกเป็นเงิน = 999 บาท"_s << u"999"_s;
}

void CutNumTest::amountIsChecked()
{
    QFETCH(bool, chosen);
    QFETCH(QString, amount);
    QString left;
    cut(1, [&](QWidget *dialog) {
        auto *lines = dialog->findChild<Spread *>();
        const QPoint belowTheRows = lines->viewport()->rect().center();
        QTest::mouseClick(lines->viewport(), Qt::LeftButton, {},
                          chosen ? QPoint(40, 10) : belowTheRows);
        auto *field = dialog->findChild<QLineEdit *>(u"text1"_s);
        field->setText(amount);
        Hands::click(dialog->findChild<PushButton *>(u"lvButtons_H3"_s)); // Enter answers Cancel
        left = field->text();
    });
    QFETCH(QString, box);
    QCOMPARE(m_hands->takeBoxes(), QStringList(box));
    QTEST(left, "left");
    QCOMPARE(m_ledger->run(u"SELECT sum(numBuy) FROM tblNumber"_s), QStringList(u"2040"_s));
}

void CutNumTest::activeRowIsCut()
{
    QString named;
    int rows = -1;
    cut(1, [&](QWidget *dialog) {
        auto *lines = dialog->findChild<Spread *>();
        Hands::press(Qt::Key_Space);
        Hands::press(Qt::Key_Down); // to the line of the other, without choosing him
        named = dialog->findChild<QLineEdit *>(u"Tname"_s)->text();
        auto *amount = dialog->findChild<QLineEdit *>(u"text1"_s);
        amount->setFocus();
        Hands::type(u"500"_s);
        for (int cuts = 0; cuts < 2; ++cuts) { // the whole line of 500, then 500 of the other
            m_hands->answerNextWithOk();
            Hands::press(Qt::Key_Return);
        }
        m_hands->answerNextWithOk();
        Hands::press(Qt::Key_Return); // the rest; no line is left
        Hands::press(Qt::Key_Return);
        rows = lines->rows();
    });
    QCOMPARE(named, u" สมชาย"_s);
    QCOMPARE(rows, 0);
    QCOMPARE(m_hands->takeBoxes(), QStringList(3, u"คัดออกเป็นเงิน = 500 บาท"_s));
    QCOMPARE(m_ledger->run(u"SELECT NPK, NameFK, numBuy FROM tblNumberCut"_s),
             QStringList({u"1 2 500"_s, u"2 1 500"_s, u"3 1 500"_s}));
    QCOMPARE(grid(1)->text(1, 1), u"456"_s);
}

void CutNumTest::slipOfTheMouseNamesTheActiveRow()
{
    cut(1, [&](QWidget *dialog) {
        auto *lines = dialog->findChild<Spread *>();
        const auto *name = dialog->findChild<QLineEdit *>(u"Tname"_s);
        const auto place = [&](int row, int column) {
            return lines->visualRect(lines->model()->index(row - 1, column)).center();
        };
        QTest::mousePress(lines->viewport(), Qt::LeftButton, {}, place(2, 4));
        QTest::mouseRelease(lines->viewport(), Qt::LeftButton, {}, place(2, 5));
        QCOMPARE(name->text(), u" สมหญิง"_s);
        QTest::mouseClick(lines->viewport(), Qt::RightButton, {}, place(1, 4));
        QTest::mousePress(lines->viewport(), Qt::LeftButton, {}, place(2, 4) * 4); // on no row
        QTest::mouseMove(lines->viewport(), place(1, 4));
        QTest::mouseRelease(lines->viewport(), Qt::LeftButton, {}, place(1, 4));
        lines->setFocus();
        Hands::type(u"1"_s); // meant for the amount
        QCOMPARE(lines->activeRow(), 2);
        QCOMPARE(name->text(), u" สมหญิง"_s);
    });
}

void CutNumTest::lineIsRemoved()
{
    cut(1, [&](QWidget *dialog) {
        auto *button = dialog->findChild<PushButton *>(u"lvButtons_H1"_s);
        Hands::click(button); // Enter answers Cancel
        for (int line = 0; line < 2; ++line) {
            m_hands->answerNextWithOk();
            Hands::click(button);
        }
        Hands::click(button); // no row, no question
    });
    const QString first = u"คุณแน่ใจว่าต้องการลบข้อมูล \n\n[ สมชาย ][ 123 ][ 1,000 บาท ]"_s;
    const QString second = u"คุณแน่ใจว่าต้องการลบข้อมูล \n\n[ สมหญิง ][ 123 ][ 500 บาท ]"_s;
    QCOMPARE(m_hands->takeBoxes(), QStringList({first, first, second}));
    QCOMPARE(total(1), u"200"_s);
    QCOMPARE(m_ledger->run(u"SELECT * FROM tblNumberCut"_s), QStringList());
}

void CutNumTest::dialogClosesOnce_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Esc") << true;
    QTest::newRow("the window's cross") << false;
}

void CutNumTest::dialogClosesOnce()
{
    QFETCH(bool, byKey);
    int unloads = 0;
    CutNum dialog([&] { ++unloads; }, m_window.get());
    dialog.open();
    QVERIFY(Hands::focusComesTo(&dialog));
    if (byKey)
        Hands::press(Qt::Key_Escape);
    else
        dialog.close();
    QVERIFY(!dialog.isVisible());
    dialog.close();
    QCOMPARE(unloads, 1);
}

int main(int argc, char **argv)
{
    return runFormTest<CutNumTest>(argc, argv);
}
#include "test_cutnum.moc"
