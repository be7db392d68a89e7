// SPDX-License-Identifier: MIT
#include "faults/daybook.h"

#include "drawcheck/recount.h"
#include "faults/rawpages.h"
#include "ledger/connection.h"
#include "runtime/runtimeerror.h"

#include <QFile>
#include <QLocale>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array SaveOrder{0, 1, 3, 2, 4, 5, 6, 7}; // tod goes first with 2 digits
const std::vector<qint64> Rates{500, 100, 70, 12, 3, 100, 70, 4};

int number(const QString &shown)
{
    return QLocale(QLocale::English).toInt(shown);
}

QString inOrder(QString digits)
{
    std::sort(digits.begin(), digits.end());
    return digits;
}

QStringList rowsOf(Connection &ledger)
{
    QStringList rows;
    const auto read = [&](const QString &kind, const QString &sql) {
        for (const QVariantList &row : ledger.run(sql).rows) {
            QStringList fields(kind);
            for (const QVariant &field : row)
                fields += field.toString();
            rows += fields.join(u' ');
        }
    };
    read(u"customer"_s, u"SELECT MPK, Mname FROM tblMember WHERE MPK > 0 ORDER BY MPK"_s);
    for (const auto &table : {u"tblNumber"_s, u"tblNumberCut"_s}) {
        const auto lines = ledger.run(u"SELECT NPK, Mname, num23, updown, numType, numBuy, nuser,"
                                      " numValue FROM %1 LEFT JOIN tblMember ON NameFK = MPK"
                                      " ORDER BY NPK"_s.arg(table));
        for (QVariantList row : lines.rows) {
            QStringList fields(table);
            if (row[4].toInt() == Tod)
                row[7] = inOrder(row[7].toString());
            for (const QVariant &field : std::as_const(row))
                fields += field.toString();
            rows += fields.join(u' ');
        }
    }
    const QString result = u"num3up ||','|| num3down1 ||','|| num3down2 ||','|| num3down3 ||','||"
                           " num3down4 ||','|| num2down ||','|| moneyup ||','|| moneydown"_s;
    read(u"discount"_s, u"SELECT PK, rMoney FROM tblRMoney ORDER BY PK"_s);
    read(u"result"_s, u"SELECT "_s + result + u" FROM tblTrue"_s);
    read(u"draw"_s, u"SELECT "_s + result + u" FROM tblNumLog ORDER BY PK"_s);
    return rows;
}

} // namespace

Step::Step(Kind what, QRandomGenerator &dice, bool small)
    : customer(u"ลูกค้า-%1"_s.arg(dice.bounded(100))), line(dice.generate()), part(dice.generate()),
      kind(what)
{
    const auto digits = [&](int count) {
        QString thrown;
        while (thrown.size() < count)
            thrown += QString::number(dice.bounded(10));
        return thrown;
    };
    result = digits(17);
    for (int bets = dice.bounded(1, small ? 4 : 20); bets > 0; --bets) {
        const int grid = dice.bounded(ClassCount);
        ticket.AddLine(grid, digits(BetClasses[size_t(grid)].num23),
                       QString::number(dice.bounded(1, 9'999)));
    }
    if (small || dice.bounded(2) == 1)
        discount = QLocale(QLocale::English).toString(dice.bounded(1, 9'999));
}

Day::Day(quint32 seed, std::vector<Step::Kind> kinds, bool small)
    : m_dice(seed), m_kinds(std::move(kinds)), m_given(!m_kinds.empty()), m_small(small)
{}

Step::Kind Day::kind(qsizetype lines)
{
    const int thrown = m_dice.bounded(100);
    if (m_given) {
        const Step::Kind first = m_kinds.front();
        m_kinds.erase(m_kinds.begin());
        return first == Step::Cut && lines == 0 ? Step::File : first;
    }
    if (lines == 0)
        return Step::File;
    return thrown < 2    ? Step::Close
           : thrown < 12 ? Step::Check
           : thrown < 50 ? Step::Cut
                         : Step::File;
}

Step Day::next(qsizetype lines)
{
    return {kind(lines), m_dice, m_small};
}

QStringList DayBook::rows() const
{
    QStringList rows;
    for (qsizetype at = 0; at < m_customers.size(); ++at)
        rows += u"customer %1 %2"_s.arg(at + 1).arg(m_customers[at]);
    const auto tell = [&](const QString &table, const QMap<int, Line> &lines) {
        for (auto line = lines.begin(); line != lines.end(); ++line) {
            const BetClass &bet = BetClasses[size_t(line->betClass)];
            rows += u"%1 %2 %3 %4 %5 %6 %7 sv %8"_s.arg(table)
                        .arg(line.key())
                        .arg(line->customer)
                        .arg(bet.num23)
                        .arg(bet.updown ? -1 : 0)
                        .arg(bet.numType)
                        .arg(line->amount)
                        .arg(line->number);
        }
    };
    tell(u"tblNumber"_s, m_lines);
    tell(u"tblNumberCut"_s, m_cuts);
    for (auto discount = m_discounts.begin(); discount != m_discounts.end(); ++discount)
        rows += u"discount %1 %2"_s.arg(discount.key()).arg(*discount);
    rows += u"result "_s + m_result;
    for (const QString &draw : m_history)
        rows += u"draw "_s + draw;
    return rows;
}

QStringList DayBook::rowsLeftIn(const QString &ledger, const QByteArray &key)
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath(u"copy"_s);
    QFile::copy(ledger, copy);
    QFile::copy(ledger + u"-wal"_s, copy + u"-wal"_s);
    QStringList rows;
    try {
        const auto opened = Connection::open(copy, key);
        const auto damage = opened->run(u"PRAGMA integrity_check"_s).rows[0][0].toString();
        rows = damage == u"ok" ? rowsOf(*opened) : QStringList(damage);
    } catch (const RunTimeError &error) {
        return {error.report()};
    }
    // The engine does not read free pages, and the journal has been moved into the file by now.
    const RawPages pages = readRawPages(copy, copy);
    return pages.broken.isEmpty() ? rows : QStringList(u"pages that nobody signed"_s);
}

bool DayBook::goOn(Day day, qsizetype acknowledged, const QStringList &found)
{
    std::optional<DayBook> match;
    qsizetype heard = 0;
    const auto compare = [&] {
        if (!match && rows() == found)
            match = *this;
    };
    const Passed passed = [&](bool isAcknowledged) {
        heard += isAcknowledged ? 1 : 0;
        if (heard == acknowledged || (heard == acknowledged + 1 && isAcknowledged))
            compare();
    };
    if (acknowledged == 0)
        compare();
    while (heard <= acknowledged && !day.isOver()) {
        const Step step = day.next(m_lines.size());
        switch (step.kind) {
        case Step::File:
            file(step, passed);
            break;
        case Step::Cut:
            cut(step, passed);
            break;
        case Step::Check:
            check(step, passed);
            break;
        case Step::Close:
            close(passed);
        }
    }
    if (match)
        *this = *match;
    return match.has_value();
}

void DayBook::file(const Step &step, const Passed &passed)
{
    for (const int at : SaveOrder) {
        const SpreadModel &grid = step.ticket.grids[size_t(at)];
        for (int row = 1; row <= grid.rows(); ++row) {
            if (!m_customers.contains(step.customer)) {
                m_customers += step.customer;
                passed(false);
            }
            const QString bet = grid.text(row, NumberColumn);
            m_lines[m_lines.isEmpty() ? 1 : m_lines.lastKey() + 1] = {
                step.customer, at, BetClasses[size_t(at)].numType == Tod ? inOrder(bet) : bet,
                number(grid.text(row, AmountColumn))};
            passed(true);
        }
    }
    if (step.discount.isEmpty())
        return;
    m_discounts[m_discounts.isEmpty() ? 1 : m_discounts.lastKey() + 1] = number(step.discount);
    passed(true);
}

/// Two statements without a transaction: between them the money is in neither table.
void DayBook::cut(const Step &step, const Passed &passed)
{
    const auto from = std::next(m_lines.begin(), step.line % m_lines.size());
    Line laidOff = *from;
    laidOff.amount = step.partOf(from->amount);
    from->amount -= laidOff.amount;
    if (from->amount == 0)
        m_lines.erase(from);
    passed(false);
    m_cuts[m_cuts.isEmpty() ? 1 : m_cuts.lastKey() + 1] = laidOff;
    passed(true);
}

void DayBook::check(const Step &step, const Passed &passed)
{
    RecountDraw draw{step.result, {}, {}, Rates, 0};
    for (const Line &line : std::as_const(m_lines))
        draw.lines.push_back({1, line.betClass, line.number, line.amount});
    for (const int discount : std::as_const(m_discounts))
        draw.discounts += discount;
    const RecountOutcome outcome = recount(draw);
    const QString &digits = step.result;
    m_result = u"%1,%2,%3,%4,%5,%6,%7,%8"_s.arg(
        digits.mid(0, 3), digits.mid(3, 3), digits.mid(6, 3), digits.mid(9, 3), digits.mid(12, 3),
        digits.mid(15, 2), QString::number(number(outcome.profit)),
        QString::number(number(outcome.payout)));
    passed(true);
}

void DayBook::close(const Passed &passed)
{
    m_discounts.clear();
    passed(false);
    m_lines.clear();
    passed(false);
    m_cuts.clear();
    passed(false);
    m_history += m_result;
    passed(true);
}
