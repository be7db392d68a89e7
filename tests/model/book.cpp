// SPDX-License-Identifier: MIT
#include "model/trade.h"

#include <QMap>
#include <QVariant>

#include <algorithm>
#include <limits>
#include <tuple>

using namespace Qt::StringLiterals;

namespace model {

namespace {

constexpr qint64 Most = std::numeric_limits<qint32>::max();
const QString Hot = u" hot"_s; // behind a row with half the money
const QStringList Words{u""_s, u"ตรง"_s, u"โต๊ด"_s, u"วิ่ง"_s};

/// Straight at the end of a prize, otherwise with its digits in any places.
bool matches(const Bet &bet, const QString &prize)
{
    if (bet.what().type == Straight)
        return prize.endsWith(bet.number);
    return std::all_of(bet.number.begin(), bet.number.end(),
                       [&](QChar digit) { return bet.number.count(digit) <= prize.count(digit); });
}

bool isWon(const Bet &bet, const QString &result)
{
    const auto &[digits, top, type, caption] = bet.what();
    const int end = top ? 3 : digits == 3 ? 15 : 17;
    for (int at = top ? 0 : digits == 3 ? 3 : 15; at < end; at += 3) {
        if (matches(bet, result.mid(at, 3)))
            return true;
    }
    return false;
}

/// True if the first bet can win together with the second one, of the most digits.
bool isRelated(const Bet &bet, const Bet &other)
{
    const auto &[digits, top, type, caption] = other.what();
    return top == bet.what().top && digits == (top ? 3 : 2) && matches(bet, other.number)
           && (type == Straight ? bet.betClass != other.betClass : bet.what().digits == 2);
}

/// All money on each number, by side, type, digits and number.
std::map<std::pair<int, QString>, Bet> sums(const Book::Bets &lines,
                                            const std::function<bool(const Bet &)> &counts)
{
    std::map<std::pair<int, QString>, Bet> sums;
    for (const auto &[key, line] : lines) {
        if (!counts(line))
            continue;
        const int rank = 100 * !line.what().top + 10 * line.what().type + line.what().digits;
        Bet &sum = sums[{rank, line.number}];
        sum = {line.betClass, line.number, sum.amount + line.amount};
    }
    return sums;
}

int timesHot(const Book &book, const Bet &bet)
{
    return int(std::count_if(book.hot.begin(), book.hot.end(), [&](const QString &number) {
        return number.size() == bet.number.size() && matches(bet, number);
    }));
}

qint64 shown(const Book &book, const Bet &bet)
{
    return timesHot(book, bet) > 0 ? (bet.amount + 1) / 2 : bet.amount;
}

/// Rows by what they are sorted by.
using Rows = QMap<std::tuple<qint64, qint64, QString, int>, QString>;

template<typename... Fields>
QString joined(const Fields &...fields)
{
    QStringList texts;
    ((texts += QVariant(fields).toString()), ...);
    return texts.join(u' ');
}

template<typename Value>
int nextKey(const std::map<int, Value> &values)
{
    return values.empty() ? 1 : values.rbegin()->first + 1;
}

} // namespace

int Book::customer(const QString &name)
{
    for (const auto &[key, each] : customers) {
        if (each.name == name)
            return key;
    }
    const int key = nextKey(customers);
    customers[key].name = name;
    return key;
}

/// All tod bets on the same digits are to have one spelling: the lowest one in the book. The keyed
/// order counts only if another order of its digits reads the same.
void Book::file(const QString &name, Bet bet, const Between &between)
{
    const QString keyed = bet.number;
    const bool pair = keyed.count(keyed.front()) > 1 || keyed.count(keyed.back()) > 1;
    QStringList inBook;
    for (const auto &[key, line] : lines) {
        if (line.betClass == bet.betClass && bet.what().type == Tod
            && (line.number != keyed || pair) && matches(line, keyed)
            && customers.contains(line.customer))
            inBook += line.number;
    }
    if (!inBook.isEmpty())
        bet.number = *std::min_element(inBook.begin(), inBook.end());
    const size_t known = customers.size();
    bet.customer = customer(name);
    if (customers.size() > known)
        between();
    lines[nextKey(lines)] = bet;
}

void Book::addDiscount(qint64 amount)
{
    if (amount != 0)
        discounts[nextKey(discounts)] = amount;
}

void Book::cut(int key, qint64 amount, const Between &between)
{
    Bet taken = lines.at(key);
    taken.amount = amount;
    if ((lines[key].amount -= amount) == 0)
        lines.erase(key);
    between();
    cuts[nextKey(cuts)] = taken;
}

void Book::close(const Between &between)
{
    discounts.clear();
    between();
    lines.clear();
    between();
    cuts.clear();
    between();
    hot.clear();
    between();
    history += kept;
}

QStringList Book::linesOn(size_t betClass, const QString &number) const
{
    Rows rows;
    for (const auto &[key, line] : lines) {
        if (line.betClass == betClass && line.number == number && customers.contains(line.customer))
            rows[{-line.amount, key, {}, 0}] =
                QString::number(key) + u'|' + baht(line.amount) + u' ';
    }
    return rows.values();
}

QStringList Book::board(size_t betClass, int ofCustomer) const
{
    Rows rows; // the highest amount shown first
    qint64 total = 0;
    const auto counts = [&](const Bet &line) {
        return line.betClass == betClass && (ofCustomer < 0 || line.customer == ofCustomer);
    };
    for (const auto &[place, bet] : sums(lines, counts)) {
        rows[{-shown(*this, bet), -bet.amount, bet.number, 0}] =
            bet.number + u'|' + baht(shown(*this, bet)) + (timesHot(*this, bet) > 0 ? Hot : u""_s);
        total += bet.amount;
    }
    if (rows.empty())
        return {u"0|0"_s};
    const qint64 estimate = -std::get<0>(rows.firstKey()) * rates[betClass];
    return QStringList(baht(total) + u'|' + baht(estimate)) + rows.values();
}

QStringList Book::scan(bool top) const
{
    const auto bets = sums(lines, [&](const Bet &line) { return line.what().top == top; });
    Rows rows; // most related lines first
    for (const auto &[place, bet] : bets) {
        QString related;
        for (const auto &[otherPlace, other] : bets) {
            if (isRelated(bet, other))
                related += u"%1  =  %2      ยอด  %3\r\n"_s.arg(other.what().type)
                               .arg(other.number, QString::number(other.amount));
        }
        const qint64 count = related.count(u'\n');
        if (count > 0)
            rows[{-count, -bet.amount, bet.number, bet.what().type}] =
                QStringList{Words[bet.what().type], bet.number, baht(shown(*this, bet)),
                            QString::number(count) + u'%', related}
                    .join(u'|');
    }
    return rows.values();
}

QStringList Book::check(const QString &result, bool ofCuts)
{
    qint64 taken = 0;
    qint64 discounted = 0;
    for (const auto &[key, line] : lines)
        taken += line.amount;
    for (const auto &[key, amount] : discounts)
        discounted += amount;
    QStringList rows;
    qint64 payouts = 0;
    bool fails = false;
    std::map<QString, int> keys;
    for (const auto &[key, each] : customers)
        keys[each.name] = key;
    for (const auto &[name, key] : keys) {
        const auto wins = [&, key = key](const Bet &line) {
            return line.customer == key && isWon(line, result);
        };
        for (const auto &[place, win] : sums(ofCuts ? cuts : lines, wins)) {
            qint64 payout = win.amount * rates[win.betClass];
            const int halved = ofCuts ? 0 : timesHot(*this, win); // another pays what was cut
            fails = fails || payout == 0 || (halved > 0 && payout > Most);
            for (int left = halved; left > 0; --left)
                payout = (payout + 1) / 2;
            payouts += payout;
            fails = fails || payouts > Most;
            rows += u"%1-%2| %3| %4|%5|%6| %7|0%8%9"_s.arg(
                Words[win.what().type], win.what().top ? u"บน"_s : u"ล่าง"_s, win.number,
                customers.at(key).percent, baht(win.amount), baht(payout), name,
                customers.at(key).telephone, halved > 0 ? Hot : u""_s);
        }
    }
    const bool won = !rows.empty();
    if (ofCuts && won)
        return rows << u"เลขคัดออก|เลขคัดออก"_s;
    if (fails || (won && taken == discounted))
        return {};
    const qint64 profit = ofCuts ? 0 : taken - (won ? payouts : discounted);
    kept.clear();
    for (int at = 0; at < 17; at += 3)
        kept += result.mid(at, 3) + u' ';
    kept += joined(profit, payouts);
    return rows << (won ? baht(payouts) : u"0"_s) + u'|' + (ofCuts ? u"0"_s : baht(profit));
}

QStringList Book::rows() const
{
    QStringList rows;
    for (const auto &[key, each] : customers)
        rows += joined(u"customer"_s, key, each.name, each.percent, each.telephone);
    for (const auto *table : {&lines, &cuts}) {
        for (const auto &[key, line] : *table) {
            const auto &[digits, top, type, caption] = line.what();
            rows += joined(table == &lines ? u"line"_s : u"cut"_s, key, line.customer, digits,
                           top ? -1 : 0, int(type), line.number, line.amount, u"sv"_s);
        }
    }
    for (const auto &[key, amount] : discounts)
        rows += joined(u"discount"_s, key, amount);
    for (const QString &number : hot)
        rows += u"hot "_s + number;
    rows += u"rates"_s;
    for (const qint64 rate : rates)
        rows.last() += u' ' + QString::number(rate);
    rows += u"result "_s + kept;
    for (const QString &draw : history)
        rows += u"draw "_s + draw;
    return rows;
}

} // namespace model
