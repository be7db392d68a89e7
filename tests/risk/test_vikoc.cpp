// SPDX-License-Identifier: MIT
// The dialogs of the risk scan under the agent's hands, opened from the board of the real program.
#include "cutting/selection.h"
#include "ledger/ledger.h"
#include "risk/scan.h"
#include "shell/globals.h"
#include "support/formtest.h"
#include "widgets/combo.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>

using namespace Qt::StringLiterals;

class ViKoCTest : public FormTest
{
    Q_OBJECT

private slots:
    void coverageCountsWhatTheBoardShows();
    void nothingRiskyIsSaidInABox();
    void rowIsInspectedByKeys();
    void rowIsInspectedByMouse();
    void cutRunsTheScanAgain();

private:
    void prepare() override;
    void addLines(const QString &values) const
    {
        m_ledger->run(u"INSERT INTO tblNumber (NameFK, num23, updown, numType, numValue, numBuy, "
                      "nuser) SELECT *, 'sv' FROM (VALUES "_s
                      + values + u')');
    }
    /// Opens the scan from the board and works there.
    void inScan(const std::function<void(QWidget *scan)> &work)
    {
        m_hands->inNextDialog([&](QWidget *scan) {
            QVERIFY(Hands::focusComesTo(scan));
            work(scan);
            scan->close();
        });
        click("lvButtons_H6");
        QCOMPARE(CutOrigin, 1);
    }
    static QStringList shown(QWidget *scan)
    {
        const auto *grid = scan->findChild<Spread *>(u"fpSpread1"_s);
        QStringList rows;
        for (int row = 1; row <= grid->rows(); ++row)
            rows += grid->text(row, ScanColumn::Number) + u' ' + grid->text(row, ScanColumn::Amount)
                    + u' ' + grid->text(row, ScanColumn::Risk);
        return rows;
    }
    /// Lays off the whole of the only line behind a number.
    void cutWhole(QWidget *cut, const QString &amount)
    {
        QVERIFY(Hands::focusComesTo(cut));
        Hands::press(Qt::Key_Space);
        Hands::click(cut->findChild<QLineEdit *>(u"text1"_s));
        Hands::type(amount);
        m_hands->answerNextWithOk();
        Hands::press(Qt::Key_Return);
        cut->close();
    }
    static QString textOf(QWidget *dialog, const char *label)
    {
        return dialog->findChild<QLabel *>(QLatin1String(label))->text();
    }
    static void analyse(QWidget *scan, const char *button)
    {
        Hands::click(scan->findChild<PushButton *>(QLatin1String(button)));
    }
};

const QString NothingFound = u"ไม่พบ ( เลขที่มีความเสี่ยง !! ) ยินดีด้วย . . ."_s;

// Runs 1 and 2 on top, 2 the heavier and the less related, and run 7 at the bottom.
constexpr const char16_t *Lines = u"(1, 1, -1, 3, '1', 500), (1, 1, -1, 3, '2', 900),"
                                  u"(1, 3, -1, 1, '110', 10), (2, 3, -1, 1, '210', 20),"
                                  u"(1, 1, 0, 3, '7', 30), (1, 2, 0, 1, '71', 40)";

void ViKoCTest::prepare()
{
    m_ledger->addMember(1, u"สมชาย"_s, u"10"_s);
    m_ledger->addMember(2, u"สมหญิง"_s, u"10"_s);
    addLines(QString::fromUtf16(Lines));
    startProgramAt(2);
}

/// With two spellings of a family more is bought than there is: the bar cannot show that.
void ViKoCTest::coverageCountsWhatTheBoardShows()
{
    QStringList pairs;
    for (int number = 0; number < 46; ++number)
        pairs += u"(2, 2, -1, 2, '%1', 5)"_s.arg(number, 2, 10, QChar(u'0'));
    addLines(pairs.join(u','));
    m_window->openPage(2);
    inScan([](QWidget *scan) {
        analyse(scan, "lvButtons_H0");
        QCOMPARE(textOf(scan, "Label4"), u"2 ตัวโต๊ด : เสี่ยงถูก ( 46 / 45 )"_s);
        QCOMPARE(scan->findChild<QProgressBar *>(u"pb22"_s)->value(), 0);
        QCOMPARE(textOf(scan, "Label1"), u"3 ตัวตรง : เสี่ยงถูก ( 2 / 1000 )"_s);
        QCOMPARE(scan->findChild<QProgressBar *>(u"pb31"_s)->value(), 2);
        QCOMPARE(CutOrigin, 2);
        analyse(scan, "lvButtons_H1");
        QCOMPARE(textOf(scan, "Label7"), u"2 ตัวตรง : เสี่ยงถูก ( 1 / 100 )"_s);
        QCOMPARE(shown(scan), QStringList{u"7 30 1%"_s});
        QCOMPARE(CutOrigin, 3);
    });
}

void ViKoCTest::nothingRiskyIsSaidInABox()
{
    m_ledger->run(u"DELETE FROM tblNumber WHERE num23 < 3"_s);
    inScan([this](QWidget *scan) {
        analyse(scan, "lvButtons_H0");
        QCOMPARE(m_hands->takeBoxes(), QStringList{NothingFound});
        analyse(scan, "lvButtons_H1"); // nothing is bought there: no box
        QCOMPARE(shown(scan), QStringList());
    });
}

/// The scan has moved its first row down: the inspector shows the row that is seen.
void ViKoCTest::rowIsInspectedByKeys()
{
    inScan([this](QWidget *scan) {
        Hands::press(Qt::Key_Return); // on the first button
        QCOMPARE(shown(scan), QStringList({u"1 500 2%"_s, u"2 900 1%"_s}));
        Hands::press(Qt::Key_Down);
        m_hands->inNextDialog([](QWidget *number) {
            QCOMPARE(number->windowTitle(), u"ตรวจสอบเลข ( บน )"_s);
            QCOMPARE(textOf(number, "Label13"), u"ประเภท : วิ่ง  /  เลข : 2"_s);
            QCOMPARE(textOf(number, "Label24"), u"900"_s);
            QCOMPARE(textOf(number, "Label2"), u"2,700"_s);
            QCOMPARE(textOf(number, "Label5"), u"1%"_s);
            QCOMPARE(number->findChild<QPlainTextEdit *>(u"Text1"_s)->toPlainText(),
                     u"1  =  210      ยอด  20\n"_s);
            QTest::keyClick(number, Qt::Key_Return);
        });
        Hands::press(Qt::Key_Space);
        QCOMPARE(ScanRow, 2);
    });
}

void ViKoCTest::rowIsInspectedByMouse()
{
    inScan([this](QWidget *scan) {
        analyse(scan, "lvButtons_H1");
        auto *grid = scan->findChild<Spread *>(u"fpSpread1"_s);
        ScanRow = 0;
        const QPoint button =
            grid->visualRect(grid->model()->index(0, ScanColumn::Inspect)).center();
        m_hands->inNextDialog([](QWidget *number) {
            QCOMPARE(number->windowTitle(), u"ตรวจสอบเลข ( ล่าง )"_s);
            QCOMPARE(textOf(number, "Label2"), u"120"_s);
            Hands::click(number->findChild<PushButton *>(u"lvButtons_H0"_s));
        });
        QTest::mousePress(grid->viewport(), Qt::LeftButton, {}, button);
        QTest::mouseRelease(grid->viewport(), Qt::LeftButton, {}, {5, 5}); // thought better of it
        QCOMPARE(ScanRow, 0);
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, button);
        QCOMPARE(ScanRow, 1);
    });
}

/// A filter of the board narrows the coverage and nothing else. A cut brings back the whole board
/// and is followed by the scan of the same side.
void ViKoCTest::cutRunsTheScanAgain()
{
    Hands::click(control<Combo>("Combo1"));
    Hands::type(u"สมหญิง"_s);
    Hands::press(Qt::Key_Return);
    inScan([this](QWidget *scan) {
        analyse(scan, "lvButtons_H0");
        QCOMPARE(textOf(scan, "Label5"), u"วิ่งบน : เสี่ยงถูก ( 0 / 10 )"_s);
        QCOMPARE(shown(scan), QStringList({u"1 500 2%"_s, u"2 900 1%"_s}));
        m_hands->inNextDialog([this](QWidget *cut) { cutWhole(cut, u"500"_s); });
        Hands::press(Qt::Key_Right);
        Hands::press(Qt::Key_Return);
        QCOMPARE(m_hands->takeBoxes(), QStringList{u"คัดออกเป็นเงิน = 500 บาท"_s});
        QCOMPARE(QList<int>({SelNum23, SelNumType, SelUpDown}), QList<int>({1, 3, 1}));
        QCOMPARE(shown(scan), QStringList{u"2 900 1%"_s});
        QCOMPARE(textOf(scan, "Label5"), u"วิ่งบน : เสี่ยงถูก ( 1 / 10 )"_s);
        QVERIFY(Hands::focusComesTo(scan)); // and the next key goes on there
        m_hands->inNextDialog([this](QWidget *cut) { cutWhole(cut, u"900"_s); });
        Hands::press(Qt::Key_Right);
        Hands::press(Qt::Key_Return);
        QCOMPARE(m_hands->takeBoxes().value(1), NothingFound);
        QCOMPARE(shown(scan), QStringList());
    });
}

int main(int argc, char **argv)
{
    return runFormTest<ViKoCTest>(argc, argv);
}

#include "test_vikoc.moc"
