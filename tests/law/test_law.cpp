// SPDX-License-Identifier: MIT
// The law of the money: whole draws by chance, from keyed lines to the settlement, against a book
// kept with a pencil. Not one baht may be off. DESK_LAW_LINES sets how many lines are filed.
#include "cutting/board.h"
#include "cutting/cutout.h"
#include "cutting/selection.h"
#include "drawcheck/recount.h"
#include "drawcheck/settlement.h"
#include "entry/save.h"
#include "law/pencil.h"
#include "ledger/ledger.h"
#include "shell/globals.h"
#include "support/boxscript.h"
#include "support/gridrows.h"
#include "support/keying.h"
#include "support/noprogress.h"
#include "support/outcome.h"
#include "support/testledger.h"

#include <QTest>

#include <algorithm>
#include <numeric>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int LinesInARow = 10'000;

/// Customers as a recount knows them: 1 to 6, the third and the fourth namesakes, so that no line
/// is filed for the fourth.
const QStringList Customers{u"กา"_s, u"เก"_s, u"ขา"_s, u"ขา"_s, u"แข"_s, u"มา"_s};

} // namespace

class LawTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void notOneBahtIsOff_data();
    void notOneBahtIsOff();
    void everythingWasMet() const;
    void cleanupTestCase() { m_ledger.reset(); }

private:
    int upTo(int most) { return std::uniform_int_distribution(0, most)(m_dice); }
    void beginBook();
    QString throwLine(const KindEntry &kind);
    void keyTicket();
    void saveTicket(Ticket &ticket, const PencilSlip &slip);
    void cutSomething();
    void compareTables() const;
    void compareBoards(int customer);
    void compareChecks();
    void compareCheck(Book book, const RecountDraw &draw, bool amountsToo);

    std::optional<TestLedger> m_ledger;
    NoProgress m_progress;
    BoxScript m_boxes;
    std::mt19937 m_dice;
    RecountDraw m_draw;
    PencilBook m_book;
    QString m_digits; ///< those in use in this book
    int m_filed = 0;
    QMap<QString, int> m_met;
};

void LawTest::initTestCase()
{
    m_ledger.emplace();
    m_ledger->run(u"PRAGMA synchronous = OFF"_s); // nothing here has to outlive the test
}

void LawTest::notOneBahtIsOff_data()
{
    QTest::addColumn<int>("seed");
    const int lines = qEnvironmentVariableIntValue("DESK_LAW_LINES");
    for (int seed = 1; seed <= std::max(2, lines / LinesInARow); ++seed)
        QTest::addRow("seed %d", seed) << seed;
}

void LawTest::notOneBahtIsOff()
{
    QFETCH(int, seed);
    m_dice.seed(uint(seed));
    for (m_filed = 0; m_filed < LinesInARow && !QTest::currentTestFailed();) {
        beginBook();
        const int enough = m_filed + 1 + upTo(upTo(4000));
        while (m_filed < enough && !QTest::currentTestFailed()) {
            keyTicket();
            if (upTo(4) == 0)
                cutSomething();
        }
        compareTables();
        for (const int customer : {0, 1 + upTo(5)})
            compareBoards(customer);
        compareChecks();
    }
    m_met[u"lines"_s] += m_filed;
}

/// Empties the Ledger and throws all that stands before the first ticket.
void LawTest::beginBook()
{
    m_draw = throwDraw(m_dice);
    m_draw.lines.clear();
    m_draw.discounts = 0;
    fileDraw(m_draw, *m_ledger);
    m_ledger->run(u"DELETE FROM tblNumberCut"_s);
    LoadMoney();
    m_book = {};
    m_digits = u"0123456789"_s.left(2 + upTo(8));
}

/// Most lines are well formed; some lack a key, some have one too many.
QString LawTest::throwLine(const KindEntry &kind)
{
    const auto isOneOf = [&](std::initializer_list<BetKind> kinds) {
        return std::find(kinds.begin(), kinds.end(), kind.kind) != kinds.end();
    };
    int length = 2 + upTo(1);
    if (isOneOf({BetKind::SweepTop, BetKind::SweepBottom}))
        length = 0;
    else if (isOneOf(
                 {BetKind::RunTop, BetKind::RunBottom, BetKind::DoorsTop, BetKind::DoorsBottom}))
        length = 1;
    else if (kind.kind == BetKind::TopAndBottom)
        length = 1 + upTo(2);
    QString line;
    while (length-- > 0)
        line += m_digits[upTo(int(m_digits.size()) - 1)];
    for (int amounts = isTurnKind(kind.kind) ? 2 : 1; amounts > 0; --amounts)
        line += u'-' + QString(upTo(9) == 0 ? upTo(2) : 0, u'0')
                + QString::number(1 + upTo(upTo(20) == 0 ? 99'998 : 499));
    if (const int at = upTo(int(line.size()) * 10); at < line.size())
        upTo(1) == 0 ? line.remove(at, 1) : line.insert(at, u"0123456789-"_s[upTo(10)]);
    return line;
}

void LawTest::keyTicket()
{
    Ticket ticket;
    PencilSlip slip;
    for (int lines = 1 + upTo(upTo(30)); lines > 0; --lines) {
        const KindEntry &kind = KindEntries[size_t(upTo(int(KindEntries.size()) - 1))];
        const QString caption = kind.caption.toString();
        const QString line = throwLine(kind);
        const auto boxes = m_boxes.boxes().size();
        keyLine(ticket, caption, line);
        const bool taken = slip.key(caption, line);
        QVERIFY2(m_boxes.boxes().size() == boxes + (taken ? 0 : 1), qUtf8Printable(caption + line));
        QCOMPARE(ticket.ShowTopTab, slip.topShown); // only a line that was taken turns the tab
        ++m_met[taken ? caption : u"refused"_s];
    }
    QCOMPARE(rowsOf(ticket), slip.rows());
    saveTicket(ticket, slip);
}

void LawTest::saveTicket(Ticket &ticket, const PencilSlip &slip)
{
    const auto totals = slip.totals();
    const GridTotals shown = ticket.totalGrids();
    QVERIFY(std::equal(shown.begin(), shown.end(), totals.begin(), totals.end()));
    const qint64 total = std::accumulate(totals.begin(), totals.end(), qint64(0));
    const int customer = 1 + upTo(5);
    const int percent = upTo(3) * 5;
    saveLines(ticket, Customers[customer - 1], m_progress);
    if (total > 0)
        saveDiscount(discountMoney(pencilled(total), QString::number(percent)));
    m_book.file(slip, customer == 4 ? 3 : customer);
    m_draw.discounts += (total * percent + 50) / 100;
    m_filed += int(slip.rows().size());
}

void LawTest::cutSomething()
{
    if (m_book.lines.empty())
        return;
    auto line = m_book.lines.begin();
    std::advance(line, upTo(int(m_book.lines.size()) - 1));
    const BetClass &betClass = BetClasses[line->second.column];
    SelNum23 = quint8(betClass.num23);
    SelNumType = quint8(betClass.numType);
    SelUpDown = betClass.updown;
    SelNumValue = line->second.number;
    CutOut cutOut;
    cutOut.LoadNumrunup();
    const std::vector<int> keys = m_book.keysOn(line->second.column, line->second.number);
    QCOMPARE(size_t(cutOut.grid.rows()), keys.size());
    for (size_t at = 0; at < keys.size(); ++at) {
        const CutLine listed = cutOut.lineAt(int(at) + 1);
        QCOMPARE(listed.NPK, keys[at]);
        QCOMPARE(qint64(listed.amount), m_book.lines.at(keys[at]).amount);
    }
    const size_t picked = size_t(upTo(int(keys.size()) - 1));
    const CutLine chosen = cutOut.lineAt(int(picked) + 1);
    const qint32 amount = upTo(2) == 0 ? chosen.amount : upTo(chosen.amount);
    if (upTo(20) == 0) {
        cutOut.remove(int(picked) + 1);
        m_book.remove(keys[picked]);
        return;
    }
    ++m_met[amount == chosen.amount ? u"cut in full"_s : u"cut in part"_s];
    cutOut.cut(chosen, amount);
    m_book.cut(keys[picked], amount);
}

void LawTest::compareTables() const
{
    const QString all = u"SELECT NPK, NameFK, num23, updown, numType, numValue, numBuy FROM %1"
                        " ORDER BY NPK"_s;
    QCOMPARE(m_ledger->run(all.arg(u"tblNumber"_s)), toTexts(m_book.lines));
    QCOMPARE(m_ledger->run(all.arg(u"tblNumberCut"_s)), toTexts(m_book.cuts));
    const QString stored = u"SELECT nuser, typeof(numBuy) FROM tblNumber"
                           " UNION SELECT nuser, typeof(numBuy) FROM tblNumberCut"_s;
    QCOMPARE(m_ledger->run(stored), QStringList(u"sv integer"_s));
}

void LawTest::compareBoards(int customer)
{
    Board board;
    const int whose = customer == 4 ? 3 : customer;
    const HotNumbers hotNumbers(readHotNumbers());
    std::array<BoardLines, ClassCount> boards;
    if (customer == 0)
        std::transform(BetClasses.begin(), BetClasses.end(), boards.begin(), readBoard);
    else
        boards = readCustomerBoards(Customers[customer - 1]);
    for (int at = 0; at < ClassCount; ++at) {
        board.load(at, boards[size_t(at)], hotNumbers, m_progress);
        const auto column = size_t(at);
        const QStringList rows = m_book.board(column, m_draw.hot, whose);
        const SpreadModel &grid = board.grids[column];
        QCOMPARE(rowsOf(grid, {NumberColumn, AmountColumn}, NumberColumn), rows);
        const QString total = pencilled(m_book.total(column, whose));
        QCOMPARE(grid.text(TotalRow, AmountColumn), rows.isEmpty() ? u"0"_s : total);
        const qint64 heaviest =
            rows.isEmpty() ? 0
                           : rows[0].section(u'|', 1).section(u' ', 0, 0).remove(u',').toLongLong();
        QCOMPARE(board.estimates[column],
                 rows.isEmpty() ? u"0"_s : pencilled(heaviest * m_draw.rates[column]));
        m_met[u"hot on a board"_s] += int(rows.filter(u" hot"_s).size());
    }
    QCOMPARE(qint64(savedDiscounts()), m_draw.discounts);
}

void LawTest::compareChecks()
{
    const auto linesOf = [](const std::map<int, PencilLine> &lines) {
        std::vector<RecountLine> counted;
        for (const auto &[key, line] : lines)
            counted.push_back({line.customer, int(line.column), line.number, line.amount});
        return counted;
    };
    m_draw.lines = linesOf(m_book.lines);
    compareCheck(Book::Ours, m_draw, true);
    RecountDraw cut = m_draw;
    cut.lines = linesOf(m_book.cuts);
    cut.hot.clear(); // what was laid off is another's to pay
    compareCheck(Book::CutOut, cut, false);
}

void LawTest::compareCheck(Book book, const RecountDraw &draw, bool amountsToo)
{
    ResultDigits digits;
    for (int at = 0; at < DigitCount; ++at)
        digits[size_t(at)] = draw.result[at];
    DrawCheck check;
    check.book = book;
    check.readDiscounts();
    const bool failed = !errorOf([&] { check.LoadnumberT(digits, m_progress); }).isEmpty();
    const RecountOutcome expected = recount(draw);
    QCOMPARE(failed, amountsToo && expected.fails);
    if (failed) {
        ++m_met[u"failed"_s];
        return;
    }
    QCOMPARE(rowsOf(check.winners, {1, 2, 3, 4, 5, 6, 7}, WinPayoutColumn), expected.rows);
    m_met[u"winners"_s] += int(expected.rows.size());
    m_met[u"halved"_s] += int(expected.rows.filter(u" hot"_s).size());
    if (!amountsToo)
        return;
    QCOMPARE(check.Label19, expected.payout);
    QCOMPARE(check.Label21, expected.profit);
    ++m_met[u"settled"_s];
}

/// Draws in which nothing happens would agree with anything.
void LawTest::everythingWasMet() const
{
    qInfo() << m_met;
    for (const KindEntry &kind : KindEntries) {
        if (kind.kind != BetKind::NoKind)
            QVERIFY2(m_met[kind.caption.toString()] > 50, "each kind was keyed");
    }
    QVERIFY(m_met[u"lines"_s] >= 2 * LinesInARow && m_met[u"refused"_s] > 100
            && m_met[u"cut in full"_s] > 20 && m_met[u"cut in part"_s] > 50
            && m_met[u"hot on a board"_s] > 100 && m_met[u"winners"_s] > 100
            && m_met[u"halved"_s] > 10 && m_met[u"settled"_s] > 5);
}

QTEST_GUILESS_MAIN(LawTest)
#include "test_law.moc"
