// SPDX-License-Identifier: MIT
// The risk scan without windows, held against a reckoning of its own over random books.
#include "entry/vocabulary.h"
#include "risk/inspection.h"
#include "risk/scan.h"
#include "shell/globals.h"
#include "support/gridrows.h"
#include "support/noprogress.h"
#include "support/testledger.h"

#include <QLocale>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

/// A bet as this reckoning knows it: class and digits, with the money of all its lines.
using Bet = std::tuple<int, int, std::string>; // num23, numType, number
using Book = std::map<Bet, int>;

bool holds(const std::string &number, char digit)
{
    return std::find(number.begin(), number.end(), digit) != number.end();
}

/// The trade's own words for what one result hits together, one case after the other.
bool hitTogether(bool top, const Bet &bet, const Bet &other)
{
    const auto &[digits, type, number] = bet;
    const auto &[otherDigits, otherType, longer] = other;
    if (!top)
        return digits == 1 && otherDigits == 2 && holds(longer, number[0]);
    if (otherDigits != 3 || otherType > 2)
        return false;
    if (digits == 1)
        return otherType == 1 && holds(longer, number[0]);
    if (digits == 2 && type == 2)
        return holds(longer, number[0]) && holds(longer, number[1]);
    if (digits == 2)
        return longer[1] == number[0] && longer[2] == number[1];
    return type == 2 && otherType == 1
           && std::is_permutation(longer.begin(), longer.end(), number.begin());
}

bool isHot(const Bet &bet, const std::vector<std::string> &hot)
{
    const std::string &number = std::get<2>(bet);
    return std::get<1>(bet) != 3
           && std::any_of(hot.begin(), hot.end(), [&](const std::string &each) {
                  const bool turned = std::get<1>(bet) == 2 && each.size() == number.size();
                  return turned ? std::is_permutation(each.begin(), each.end(), number.begin())
                                : each == number;
              });
}

QString baht(int amount)
{
    return QLocale(QLocale::English).toString(amount);
}

struct RiskyRow
{
    int count;
    int money;
    Bet bet;
    QString text;
};

/// All rows of a scan: "type|number|amount|count|related lines".
QStringList reckoned(bool top, const Book &book, const std::vector<std::string> &hot)
{
    static const QStringList Words{u""_s, u"ตรง"_s, u"โต๊ด"_s, u"วิ่ง"_s};
    std::vector<RiskyRow> rows;
    for (const auto &[bet, money] : book) {
        RiskyRow row{0, money, bet, {}};
        for (const auto &[other, otherMoney] : book) {
            if (!hitTogether(top, bet, other))
                continue;
            ++row.count;
            row.text += u"%1  =  %2      ยอด  %3\r\n"_s.arg(std::get<1>(other))
                            .arg(QString::fromStdString(std::get<2>(other)))
                            .arg(otherMoney);
        }
        if (row.count > 0)
            rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end(), [](const RiskyRow &left, const RiskyRow &right) {
        const auto &[digits, type, number] = left.bet;
        const auto &[otherDigits, otherType, otherNumber] = right.bet;
        return std::tie(right.count, right.money, number, type)
               < std::tie(left.count, left.money, otherNumber, otherType);
    });
    QStringList texts;
    for (const RiskyRow &row : rows) {
        const int shown = isHot(row.bet, hot) ? (row.money + 1) / 2 : row.money;
        texts += u"%1|%2|%3|%4%|%5"_s.arg(Words[std::get<1>(row.bet)],
                                          QString::fromStdString(std::get<2>(row.bet)), baht(shown),
                                          QString::number(row.count), row.text);
    }
    return texts;
}

} // namespace

class ScanTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_ledger.emplace(); }
    void init();

    void randomBooksAgree_data();
    void randomBooksAgree();
    void inspectionTakesTheRateOfTheClass();
    void failingLedgerIsPassedOver(); // the last: it takes the tables away

private:
    void addLine(int num23, bool top, int type, const QString &number, int money = 100)
    {
        m_ledger->run(u"INSERT INTO tblNumber (NameFK, num23, updown, numType, numValue, numBuy) "
                      "VALUES (?, ?, ?, ?, ?, ?)"_s,
                      {++m_lines % 3, num23, top, type, number, money});
    }
    void addHot(const QString &number) const
    {
        m_ledger->run(u"INSERT INTO tblNumberFix (Fnumber) VALUES (?)"_s, {number});
    }
    /// The rows of a scan as reckoned() writes them.
    QStringList scanned(bool top)
    {
        m_found = m_scan.run(top, m_progress);
        return rowsOf(m_scan.grid, {ScanColumn::Type, ScanColumn::Number, ScanColumn::Amount,
                                    ScanColumn::Risk, ScanColumn::Related});
    }

    std::optional<TestLedger> m_ledger;
    RiskScan m_scan;
    NoProgress m_progress;
    bool m_found = false;
    int m_lines = 0;
};

void ScanTest::init()
{
    m_ledger->run(u"DELETE FROM tblNumber"_s);
    m_ledger->run(u"DELETE FROM tblNumberFix"_s);
}

void ScanTest::randomBooksAgree_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("digits"); // how many different digits are bought
    for (int seed = 0; seed < 30; ++seed)
        QTest::addRow("book %d", seed) << 1 + seed * seed << 2 + seed % 9;
}

void ScanTest::randomBooksAgree()
{
    QFETCH(int, lines);
    QFETCH(int, digits);
    QRandomGenerator chance{quint32(lines * 10 + digits)};
    const auto number = [&](int length) {
        std::string text;
        while (int(text.size()) < length)
            text += char('0' + chance.bounded(digits));
        return text;
    };
    std::map<bool, Book> books;
    m_ledger->run(u"PRAGMA synchronous = OFF"_s); // thousands of rows
    for (int line = 0; line < lines; ++line) {
        const BetClass &bet = BetClasses[size_t(chance.bounded(ClassCount))];
        const std::string text = number(bet.num23);
        const int money = 1 + chance.bounded(30);
        addLine(bet.num23, bet.updown, bet.numType, QString::fromStdString(text), money);
        books[bet.updown][{bet.num23, bet.numType, text}] += money;
    }
    std::vector<std::string> hot;
    for (int count = chance.bounded(8); count > 0; --count) {
        hot.push_back(number(2 + count % 2));
        addHot(QString::fromStdString(hot.back()));
    }
    for (const bool top : {true, false}) {
        const QStringList expected = reckoned(top, books[top], hot);
        QCOMPARE(scanned(top), expected);
        QCOMPARE(m_found, !expected.isEmpty() || books[top].empty());
    }
}

void ScanTest::inspectionTakesTheRateOfTheClass()
{
    LoadMoney();
    RiskScan scan;
    scan.grid.setRows(1);
    scan.grid.setText(1, ScanColumn::Amount, u"1,000"_s);
    const auto lossOn = [&](const QString &type, const QString &number, quint8 origin) {
        CutOrigin = origin;
        scan.grid.setText(1, ScanColumn::Type, type);
        scan.grid.setText(1, ScanColumn::Number, number);
        return inspect(scan.grid, 1).loss.value_or(u"none"_s);
    };
    QCOMPARE(lossOn(u"โต๊ด"_s, u"012"_s, 2), u"100,000"_s);
    QCOMPARE(lossOn(u"วิ่ง"_s, u"5"_s, 2), u"3,000"_s);
    QCOMPARE(lossOn(u"วิ่ง"_s, u"5"_s, 3), u"4,000"_s);
    QCOMPARE(lossOn(u"ตรง"_s, u"12"_s, 3), u"none"_s); // the bottom scan has no such row
}

void ScanTest::failingLedgerIsPassedOver()
{
    addLine(2, true, Tod, u"12"_s);
    addLine(3, true, Straight, u"120"_s);
    m_ledger->run(u"DROP TABLE tblNumberFix"_s);
    QCOMPARE(scanned(true), QStringList{u"โต๊ด|12|100|1%|1  =  120      ยอด  100\r\n"_s});
    m_ledger->run(u"DROP TABLE tblNumber"_s);
    QCOMPARE(scanned(true), QStringList());
}

QTEST_GUILESS_MAIN(ScanTest)
#include "test_scan.moc"
