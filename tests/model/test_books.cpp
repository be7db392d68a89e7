// SPDX-License-Identifier: MIT
// Random books, from keyed lines to the closing, kept by the program and by the model: every figure
// has to agree. DESK_SEED=N plays from seed N on, DESK_SEEDS=M so many seeds.
#include "cutting/board.h"
#include "cutting/cutout.h"
#include "cutting/selection.h"
#include "drawcheck/settlement.h"
#include "entry/save.h"
#include "ledger/ledger.h"
#include "model/step.h"
#include "risk/scan.h"
#include "shell/globals.h"
#include "support/boxscript.h"
#include "support/gridrows.h"
#include "support/keying.h"
#include "support/noprogress.h"
#include "support/outcome.h"
#include "support/testledger.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <numeric>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int LinesOfASeed = 6'000;
const QStringList Names{u"กา"_s, u"เก"_s, u"ขา"_s, u"จา"_s, u"แข"_s, u"มา"_s};

} // namespace

class BooksTest : public QObject
{
    Q_OBJECT

private slots:
    void everyFigureAgrees_data();
    void everyFigureAgrees();
    void everythingOccurred() const;
    void cleanupTestCase() { m_ledger.reset(); }

private:
    int upTo(int most) { return m_random.bounded(most + 1); }
    QString digits(int count);
    void beginBook();
    void setMember(int key, const QString &name);
    void keepBook();
    QString randomLine();
    void keyLines(Ticket &ticket, model::Ticket &expected);
    void saveTicket();
    void cutLine();
    void changeMembers();
    void changeRatesAndHotNumbers();
    void compareBoards(const QString &customer);
    void compareScan(bool top);
    void compareCheck(Book source);

    std::optional<TestLedger> m_ledger;
    NoProgress m_progress;
    BoxScript m_boxes;
    QRandomGenerator m_random;
    model::Book m_book;
    int m_digits = 10; ///< how many different digits are in use in this book
    int m_most = 0;    ///< of most amounts
    int m_filed = 0;
    QMap<QString, int> m_occurred;
};

void BooksTest::everyFigureAgrees_data()
{
    QTest::addColumn<quint32>("seed");
    const uint first = qEnvironmentVariable("DESK_SEED", u"1"_s).toUInt();
    const uint count = qEnvironmentVariable("DESK_SEEDS", u"3"_s).toUInt();
    for (uint seed = first; seed < first + count; ++seed)
        QTest::addRow("seed %u", seed) << quint32(seed);
}

void BooksTest::everyFigureAgrees()
{
    QFETCH(quint32, seed);
    m_random.seed(seed);
    m_book = {};
    m_ledger.emplace();
    for (m_filed = 0; m_filed < LinesOfASeed && !QTest::currentTestFailed();) {
        beginBook();
        keepBook();
        QCOMPARE(ledgerRows(*LedgerConnection), m_book.rows());
        QCOMPARE(m_ledger->run(u"SELECT typeof(numBuy) FROM tblNumber UNION"
                               " SELECT typeof(numBuy) FROM tblNumberCut"_s),
                 QStringList(u"integer"_s));
        for (int round = 0; round < 4; ++round) {
            changeRatesAndHotNumbers();
            compareBoards(round == 0 ? QString() : Names[upTo(5)]);
            compareScan(round % 2 == 0);
            for (int check = 0; check < 10 && !QTest::currentTestFailed(); ++check)
                compareCheck(check % 3 == 0 ? Book::CutOut : Book::Ours);
        }
    }
    m_occurred[u"lines"_s] += m_filed;
}

QString BooksTest::digits(int count)
{
    QString number;
    while (number.size() < count)
        number += QString::number(m_random.bounded(m_digits));
    return number;
}

/// Closes the draw of the book before and gives the customers their names back.
void BooksTest::beginBook()
{
    m_digits = 2 + upTo(8);
    m_most = upTo(2) == 0 ? 5 : 499;
    const Step close{Step::Close};
    close.perform();
    close.perform(m_book);
    m_ledger->run(u"PRAGMA synchronous = OFF"_s); // nothing here has to outlive the test
    m_ledger->run(u"DELETE FROM tblMember WHERE MPK > 0"_s);
    m_book.customers.erase(std::next(m_book.customers.begin()), m_book.customers.end());
    for (int key = 1; key <= Names.size(); ++key)
        setMember(key, Names[key - 1]);
    for (int key = 1; key <= 20; ++key) { // the same digits in several spellings
        const size_t betClass = key % 2 == 0 ? 1 : 3;
        const model::Bet &line = m_book.lines[key] = {
            betClass, digits(model::Classes[betClass].digits), key, 1 + upTo(5)};
        m_ledger->run(u"INSERT INTO tblNumber VALUES (?, ?, ?, -1, 2, ?, ?, 'sv')"_s,
                      {key, line.customer, model::Classes[betClass].digits, line.number, key});
    }
}

void BooksTest::setMember(int key, const QString &name)
{
    m_book.customers[key] = {name, QString::number(5 * key), QString::number(800 + key)};
    m_ledger->run(u"REPLACE INTO tblMember (MPK, Mname, Mpercen, Mber) VALUES (?, ?, ?, ?)"_s,
                  {key, name, 5 * key, 800 + key});
}

void BooksTest::keepBook()
{
    const int last = m_filed + 1 + upTo(upTo(upTo(2000)));
    while (m_filed < last && !QTest::currentTestFailed()) {
        saveTicket();
        if (upTo(3) == 0)
            cutLine();
        if (upTo(7) == 0)
            changeMembers();
    }
    if (upTo(7) > 0)
        return;
    qint64 rest = 0; // discounts that eat up all takings
    for (const auto &[key, line] : m_book.lines)
        rest += line.amount;
    for (const auto &[key, amount] : m_book.discounts)
        rest -= amount;
    saveDiscount(model::baht(rest));
    m_book.addDiscount(rest);
}

/// Some lines fit no kind, some have a key too many or too few.
QString BooksTest::randomLine()
{
    QString line = digits(upTo(3));
    for (int amounts = upTo(2) == 0 ? 2 : 1; amounts > 0; --amounts)
        line += u'-' + QString(upTo(9) == 0 ? upTo(2) : 0, u'0')
                + QString::number(1 + upTo(upTo(20) == 0 ? 99'998 : m_most));
    if (const int at = upTo(int(line.size()) * 10); at < line.size())
        upTo(1) == 0 ? line.remove(at, 1) : line.insert(at, u"0123456789-"_s[upTo(10)]);
    return line;
}

void BooksTest::keyLines(Ticket &ticket, model::Ticket &expected)
{
    for (int lines = 1 + upTo(upTo(50)); lines > 0; --lines) {
        const KindEntry &kind = KindEntries[size_t(upTo(int(KindEntries.size()) - 1))];
        const QString caption = kind.caption.toString();
        const QString line = randomLine();
        const auto boxes = m_boxes.boxes().size();
        keyLine(ticket, caption, line);
        const bool accepted = expected.key(caption, line);
        QVERIFY2(m_boxes.boxes().size() == boxes + (accepted ? 0 : 1), qPrintable(caption + line));
        QCOMPARE(ticket.ShowTopTab, expected.showsTop); // only an accepted line turns the tab
        ++m_occurred[accepted ? caption : u"refused"_s];
    }
    QCOMPARE(rowsOf(ticket), expected.rows());
    const GridTotals totals = ticket.totalGrids();
    QCOMPARE(std::accumulate(totals.begin(), totals.end(), qint64(0)), expected.total());
}

void BooksTest::saveTicket()
{
    Ticket ticket;
    Step step{.customer = Names[upTo(int(Names.size()) - 1)]};
    keyLines(ticket, step.ticket);
    const qint64 total = step.ticket.total();
    const int percent = upTo(3) * 5;
    step.discount = model::discountOn(total, percent);
    step.perform(m_book);
    saveLines(ticket, step.customer, m_progress);
    if (total > 0)
        saveDiscount(discountMoney(model::baht(total), QString::number(percent)));
    m_filed += int(step.ticket.inOrderOfSaving().size());
}

/// Cuts a line, or removes it, once the list of the number has been compared.
void BooksTest::cutLine()
{
    Step step{.kind = Step::Cut, .line = m_random.generate(), .part = m_random.generate()};
    if (m_book.lines.empty())
        return;
    const auto &[key, line] = *std::next(m_book.lines.begin(), step.line % m_book.lines.size());
    if (!m_book.customers.contains(line.customer))
        return;
    const model::Class &what = model::Classes[line.betClass];
    SelNum23 = quint8(what.digits);
    SelNumType = quint8(what.type);
    SelUpDown = what.top;
    SelNumValue = line.number;
    CutOut list;
    list.LoadNumrunup();
    QStringList expected;
    for (const int each : m_book.linesOn(line.betClass, line.number))
        expected += u"%1|%2 "_s.arg(QString::number(each), model::baht(m_book.lines[each].amount));
    QCOMPARE(rowsOf(list.grid, {CutColumn::Key, CutColumn::Amount}), expected);
    if (upTo(20) == 0) {
        list.remove(list.grid.searchColumn(CutColumn::Key, QString::number(key)));
        m_book.lines.erase(key);
        return;
    }
    ++m_occurred[step.partOf(line.amount) == line.amount ? u"cut in full"_s : u"cut in part"_s];
    step.perform();
    step.perform(m_book);
}

/// Removes a customer, whose lines stay, or brings one back, the fourth by the name of the third.
void BooksTest::changeMembers()
{
    const int key = 1 + upTo(5);
    if (m_book.customers.erase(key) > 0)
        m_ledger->run(u"DELETE FROM tblMember WHERE MPK = ?"_s, {key});
    else
        setMember(key, Names[key == 4 ? 2 : key - 1]);
}

void BooksTest::changeRatesAndHotNumbers()
{
    m_ledger->run(u"DELETE FROM tblNumberFix"_s);
    m_book.hot.clear();
    for (int count = upTo(9); count > 0; --count) {
        m_book.hot += digits(2 + upTo(1));
        m_ledger->run(u"INSERT INTO tblNumberFix (Fnumber) VALUES (?)"_s, {m_book.hot.last()});
    }
    QVariantList rates;
    for (qint64 &rate : m_book.rates) {
        rate = upTo(60) == 0 ? upTo(1) * 32'767 : 1 + upTo(upTo(3) > 0 ? 800 : 9);
        rates += rate;
    }
    m_ledger->run(u"UPDATE tblMoney SET [3up] = ?, [3tod] = ?, [2up] = ?, [2tod] = ?, runup = ?,"
                  " [3down] = ?, [2down] = ?, rundown = ?"_s,
                  rates);
    LoadMoney();
}

void BooksTest::compareBoards(const QString &customer)
{
    std::array<BoardLines, ClassCount> lines;
    if (customer.isEmpty())
        std::transform(BetClasses.begin(), BetClasses.end(), lines.begin(), readBoard);
    else
        lines = readCustomerBoards(customer);
    Board board;
    for (size_t at = 0; at < lines.size(); ++at) {
        board.load(int(at), lines[at], HotNumbers(readHotNumbers()), m_progress);
        const model::Board expected = m_book.board(at, customer);
        QCOMPARE(rowsOf(board.grids[at], {NumberColumn, AmountColumn}, NumberColumn),
                 expected.rows);
        QCOMPARE(board.grids[at].text(TotalRow, AmountColumn), expected.total);
        QCOMPARE(board.estimates[at], expected.estimate);
        m_occurred[u"hot on a board"_s] += int(expected.rows.filter(u" hot"_s).size());
    }
}

void BooksTest::compareScan(bool top)
{
    RiskScan scan;
    const bool found = scan.run(top, m_progress);
    const QStringList expected = m_book.scan(top);
    QCOMPARE(rowsOf(scan.grid, {ScanColumn::Type, ScanColumn::Number, ScanColumn::Amount,
                                ScanColumn::Risk, ScanColumn::Related}),
             expected);
    const bool empty =
        std::none_of(m_book.lines.begin(), m_book.lines.end(), [&](const auto &line) {
            return model::Classes[line.second.betClass].top == top;
        });
    QCOMPARE(found, empty || !expected.isEmpty());
    ++m_occurred[expected.isEmpty() ? u"no risk"_s : u"risks"_s];
}

void BooksTest::compareCheck(Book source)
{
    ResultDigits result;
    for (QString &digit : result)
        digit = digits(1);
    DrawCheck check;
    check.book = source;
    check.readDiscounts();
    const bool fails = !errorOf([&] { check.LoadnumberT(result, m_progress); }).isEmpty();
    const QString numbers = QStringList(result.begin(), result.end()).join(u""_s);
    const bool cuts = source == Book::CutOut;
    const model::Check expected = cuts ? m_book.checkCuts(numbers) : m_book.check(numbers);
    QCOMPARE(fails, expected.fails);
    QCOMPARE(m_ledger->run(u"SELECT moneyup, moneydown FROM tblTrue"_s),
             QStringList(m_book.kept.section(u' ', 6)));
    ++m_occurred[fails ? u"failed"_s : expected.rows.isEmpty() ? u"lost"_s : u"won"_s];
    if (fails)
        return;
    QCOMPARE(rowsOf(check.winners, {1, 2, 3, 4, 5, 6, 7}, WinPayoutColumn), expected.rows);
    const QString payout = expected.rows.isEmpty() ? u"0"_s : model::baht(expected.payout);
    QString amounts = payout + u' ' + model::baht(expected.profit);
    if (cuts)
        amounts = expected.rows.isEmpty() ? u"0 0"_s : u"เลขคัดออก เลขคัดออก"_s;
    QCOMPARE(check.Label19 + u' ' + check.Label21, amounts);
    m_occurred[u"halved"_s] += int(expected.rows.filter(u" hot"_s).size());
}

/// Books in which nothing happens would agree with any model.
void BooksTest::everythingOccurred() const
{
    qInfo() << m_occurred;
    QCOMPARE(m_occurred.size(), 24); // the kinds and what else is counted
    for (const int times : m_occurred)
        QVERIFY(times > 5);
}

QTEST_GUILESS_MAIN(BooksTest)
#include "test_books.moc"
