// SPDX-License-Identifier: MIT
// Random books, from keyed lines to the closing, kept by the program and by the model: every figure
// has to agree. DESK_SEED=N plays from seed N on, DESK_SEEDS=M so many seeds.
#include "cutting/board.h"
#include "cutting/cutout.h"
#include "cutting/selection.h"
#include "drawcheck/settlement.h"
#include "entry/save.h"
#include "ledger/ledger.h"
#include "model/keyed.h"
#include "model/step.h"
#include "risk/scan.h"
#include "settings/hotnumberlist.h"
#include "settings/rates.h"
#include "shell/globals.h"
#include "support/noprogress.h"
#include "support/outcome.h"
#include "support/testledger.h"

#include <QCoreApplication>
#include <QRandomGenerator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QStringList Names{u"กา"_s, u"ขา"_s, u"งา"_s, u"จา"_s, u"ตา"_s, u"มา"_s};
QMap<QString, int> occurred;

struct Agent
{
    /// Keeps the book of a draw, about @p lines lines.
    void keepBook(size_t lines)
    {
        differentDigits = 2 + upTo(8);
        mostBaht = upTo(2) == 0 ? 5 : 499;
        percent = upTo(3) == 0 ? 100 : upTo(30); // 100 leave no takings
        beginBook(lines == 0);
        while (book.lines.size() < lines) {
            saveTicket();
            if (upTo(3) == 0 && !book.lines.empty())
                cutLine();
            const int deleted = 1 + upTo(500); // its lines stay
            book.customers.erase(deleted);
            ledger.run(u"DELETE FROM tblMember WHERE MPK = ?"_s, {deleted});
        }
        for (int round = 0; round < 4; ++round) {
            changeRatesAndHotNumbers();
            const auto chosen =
                std::next(book.customers.begin(), upTo(int(book.customers.size()) - 1));
            compareBoards(round == 0 ? -1 : chosen->first, chosen->second.name);
            compareScan(round % 2 == 0);
            for (int check = 0; check < 10; ++check)
                compareCheck(check % 3 == 0 ? Book::CutOut : Book::Ours);
            same(u"Ledger"_s, ledgerRows(*LedgerConnection), book.rows());
        }
        const Step close{Step::Close};
        close.perform();
        close.perform(book);
        same(u"closed Ledger"_s, ledgerRows(*LedgerConnection), book.rows());
    }

    int upTo(int most) { return random.bounded(most + 1); }

    QString digits(int count)
    {
        QString number;
        while (number.size() < count)
            number += QString::number(upTo(differentDigits - 1));
        return number;
    }

    void beginBook(bool empty)
    {
        book.customers.erase(std::next(book.customers.begin()), book.customers.end());
        ledger.run(u"PRAGMA synchronous = OFF"_s); // nothing here has to outlive the test
        ledger.run(u"DELETE FROM tblMember WHERE MPK > 0"_s);
        for (int key = 1; key <= Names.size(); ++key) {
            book.customers[key] = {Names[key - 1], QString::number(5 * key), u"800"_s};
            ledger.run(u"INSERT INTO tblMember VALUES (?, ?, 800, ?)"_s,
                       {key, Names[key - 1], 5 * key});
            if (empty)
                continue;
            book.lines[key] = {1, digits(3), 1, 1}; // the same digits in several orders
            ledger.run(u"INSERT INTO tblNumber VALUES (?, 1, 3, -1, 2, ?, 1, 'sv')"_s,
                       {key, book.lines[key].number});
        }
    }

    void saveTicket()
    {
        KeyedTicket keyed;
        for (int lines = 1 + upTo(upTo(50)); lines > 0; --lines) {
            QString line = digits(upTo(3));
            for (int amounts = upTo(2) == 0 ? 2 : 1; amounts > 0; --amounts)
                line += u'-' + QString(upTo(9) == 0 ? upTo(2) : 0, u'0')
                        + QString::number(1 + upTo(upTo(20) == 0 ? 99'998 : mostBaht));
            if (const int at = upTo(int(line.size()) * 10); at < line.size()) // too many or too few
                upTo(1) == 0 ? line.remove(at, 1) : line.insert(at, u"0123456789-"_s[upTo(10)]);
            const QString caption =
                KindEntries[size_t(upTo(KindEntries.size() - 1))].caption.toString();
            ++occurred[keyed.key(caption, line) ? caption : u"refused"_s];
        }
        keyed.compare();
        const QString &customer = Names[upTo(5)];
        saveLines(keyed.ticket, customer, progress);
        for (const model::Bet &bet : keyed.expected.inOrderOfSaving())
            book.file(customer, bet);
        const qint64 total = keyed.expected.total();
        book.addDiscount(model::discountOn(total, percent));
        if (total > 0)
            saveDiscount(discountMoney(model::baht(total), QString::number(percent)));
    }

    void cutLine()
    {
        const auto [key, line] = *std::next(book.lines.begin(), upTo(int(book.lines.size()) - 1));
        SelNum23 = quint8(line.what().digits);
        SelNumType = quint8(line.what().type);
        SelUpDown = line.what().top;
        SelNumValue = line.number;
        CutOut list;
        list.LoadNumrunup();
        same(u"lines of a number"_s, rowsOf(list.grid, {CutColumn::Key, CutColumn::Amount}),
             book.linesOn(line.betClass, line.number));
        const int row = list.grid.searchColumn(CutColumn::Key, QString::number(key));
        if (row < 0) // its customer has been deleted
            return;
        const int part = upTo(2) == 0 ? int(line.amount) : 1 + upTo(int(line.amount) - 1);
        list.cut(list.lineAt(row), part);
        book.cut(key, part);
    }

    void changeRatesAndHotNumbers()
    {
        deleteAllHotNumbers();
        book.hot.clear();
        for (int count = upTo(9); count > 0; --count) {
            book.hot += digits(2 + upTo(1));
            addHotNumber(book.hot.last());
        }
        RateTexts rates;
        for (size_t at = 0; at < rates.size(); ++at) {
            book.rates[at] = upTo(60) == 0 ? upTo(1) * 32'767 : 1 + upTo(upTo(3) > 0 ? 800 : 9);
            rates[at] = QString::number(book.rates[at]);
        }
        writeRates(rates);
        LoadMoney();
    }

    /// Of the whole book, or of a customer unless the key is negative.
    void compareBoards(int customer, const QString &name)
    {
        Board board;
        for (size_t at = 0; at < board.grids.size(); ++at) {
            board.load(int(at),
                       customer < 0 ? readBoard(BetClasses[at]) : readCustomerBoards(name)[at],
                       HotNumbers(readHotNumbers()), progress);
            const SpreadModel &grid = board.grids[at];
            const QStringList rows{grid.text(TotalRow, AmountColumn) + u'|' + board.estimates[at]};
            same(u"board of "_s + name,
                 rows + rowsOf(grid, {NumberColumn, AmountColumn}, NumberColumn),
                 book.board(at, customer));
        }
    }

    void compareScan(bool top)
    {
        RiskScan scan;
        scan.run(top, progress);
        same(u"scan"_s,
             rowsOf(scan.grid, {ScanColumn::Type, ScanColumn::Number, ScanColumn::Amount,
                                ScanColumn::Risk, ScanColumn::Related}),
             book.scan(top));
    }

    void compareCheck(Book source)
    {
        ResultDigits result;
        QString digitsDrawn;
        for (QString &digit : result)
            digitsDrawn += digit = digits(1);
        DrawCheck check;
        check.book = source;
        check.readDiscounts();
        QStringList rows;
        if (errorOf([&] { check.LoadnumberT(result, progress); }).isEmpty())
            rows = rowsOf(check.winners, {1, 2, 3, 4, 5, 6, 7}, WinPayoutColumn)
                   << check.Label19 + u'|' + check.Label21;
        same(u"draw check"_s, rows, book.check(digitsDrawn, source == Book::CutOut));
        ++occurred[rows.isEmpty() ? u"failed"_s : rows.size() == 1 ? u"lost"_s : u"won"_s];
    }

    QRandomGenerator random;
    TestLedger ledger{};
    NoProgress progress{};
    model::Book book{};
    int differentDigits = 10;
    int mostBaht = 0; ///< in most lines
    int percent = 0;  ///< of all discounts
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const uint first = qEnvironmentVariable("DESK_SEED", u"1"_s).toUInt();
    const uint count = qEnvironmentVariable("DESK_SEEDS", u"3"_s).toUInt();
    for (uint seed = first; seed < first + count; ++seed) {
        qInfo("seed %u", seed);
        Agent agent{QRandomGenerator(seed)};
        for (const size_t lines : {0, 7, 10, 20, 30, 40, 300, 2000, 4000})
            agent.keepBook(lines);
    }
    qInfo() << occurred; // books in which nothing happens would agree with any model
    return occurred.size() == 17 && *std::min_element(occurred.begin(), occurred.end()) > 5 ? 0 : 1;
}
