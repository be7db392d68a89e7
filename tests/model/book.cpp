// SPDX-License-Identifier: MIT
#include "model/trade.h"

#include <QVariant>

#include <algorithm>
#include <limits>
#include <set>
#include <tuple>

using namespace Qt::StringLiterals;

namespace model {

namespace {

constexpr qint64 Most = std::numeric_limits<qint32>::max();
const QString Hot = u" hot"_s; // behind a row with half the money
const QStringList Words{u""_s, u"ตรง"_s, u"โต๊ด"_s, u"วิ่ง"_s};

QString sorted(QString digits)
{
    std::sort(digits.begin(), digits.end());
    return digits;
}

/// A key for the order of a Thai dictionary: a vowel written before its consonant counts after it,
/// signs above the letters do not count.
QString thaiOrder(QString name)
{
    for (qsizetype at = 0; at + 1 < name.size(); ++at) {
        if (name[at] >= u'เ' && name[at] <= u'ไ') {
            std::swap(name[at], name[at + 1]);
            ++at;
        }
    }
    return name.removeIf([](QChar sign) { return sign >= QChar(0x0e47) && sign <= QChar(0x0e4e); });
}

template<typename Value>
int nextKey(const std::map<int, Value> &values)
{
    return values.empty() ? 1 : values.rbegin()->first + 1;
}

/// True if the first bet can win together with the second, longer one.
bool isRelated(const Bet &bet, const Bet &other)
{
    const auto &[digits, top, type, caption] = Classes[bet.betClass];
    const Class &longer = Classes[other.betClass];
    const QString &number = bet.number;
    if (top != longer.top || longer.digits != (top ? 3 : 2))
        return false;
    if (type == Run)
        return longer.type == Straight && other.number.contains(number);
    if (digits == 3)
        return type == Tod && longer.type == Straight && sorted(number) == sorted(other.number);
    if (type == Tod)
        return other.number.contains(number[0]) && other.number.contains(number[1]);
    return top && other.number.endsWith(number);
}

bool isWon(const Bet &bet, const QString &result)
{
    const auto &[digits, top, type, caption] = Classes[bet.betClass];
    if (!top && digits == 3)
        return QStringList{result.mid(3, 3), result.mid(6, 3), result.mid(9, 3), result.mid(12, 3)}
            .contains(bet.number);
    QString prize = top ? result.left(3) : result.right(2);
    if (type == Straight)
        return prize.endsWith(bet.number);
    return std::all_of(bet.number.begin(), bet.number.end(), [&](QChar digit) {
        const qsizetype at = prize.indexOf(digit);
        return at >= 0 && !prize.remove(at, 1).isNull();
    });
}

template<typename... Fields>
QString joined(const Fields &...fields)
{
    QStringList texts;
    ((texts += QVariant(fields).toString()), ...);
    return texts.join(u' ');
}

/// A result and its amounts as they are stored.
QString toText(const QString &result, qint64 profit, qint64 payout)
{
    return joined(result.mid(0, 3), result.mid(3, 3), result.mid(6, 3), result.mid(9, 3),
                  result.mid(12, 3), result.mid(15), profit, payout);
}

/// A bet for each number of each class, with its money in all lines that count.
std::vector<Bet> sums(const Book::Bets &lines, const std::function<bool(const Bet &)> &counts)
{
    std::map<std::pair<size_t, QString>, qint64> money;
    for (const auto &[key, line] : lines) {
        if (counts(line))
            money[{line.betClass, line.number}] += line.amount;
    }
    std::vector<Bet> bets;
    bets.reserve(money.size());
    for (const auto &[bet, amount] : money)
        bets.push_back({bet.first, bet.second, amount});
    return bets;
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
QString Book::spelling(const Bet &bet) const
{
    const QString digits = sorted(bet.number);
    const bool pair = std::adjacent_find(digits.begin(), digits.end()) != digits.end();
    std::set<QString> inBook;
    for (const auto &[key, line] : lines) {
        if (line.betClass == bet.betClass && (line.number != bet.number || pair)
            && sorted(line.number) == digits && customers.contains(line.customer))
            inBook.insert(line.number);
    }
    return inBook.empty() ? bet.number : *inBook.begin();
}

void Book::file(const QString &name, Bet bet, const Between &between)
{
    if (Classes[bet.betClass].type == Tod)
        bet.number = spelling(bet);
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

std::vector<int> Book::linesOn(size_t betClass, const QString &number) const
{
    std::vector<int> keys;
    for (const auto &[key, line] : lines) {
        if (line.betClass == betClass && line.number == number && customers.contains(line.customer))
            keys.push_back(key);
    }
    std::stable_sort(keys.begin(), keys.end(), [&](int one, int other) {
        return lines.at(one).amount > lines.at(other).amount;
    });
    return keys;
}

int Book::timesHot(const Bet &bet) const
{
    const Type type = Classes[bet.betClass].type;
    return int(std::count_if(hot.begin(), hot.end(), [&](const QString &number) {
        return type == Tod ? sorted(number) == sorted(bet.number)
                           : type == Straight && number == bet.number;
    }));
}

qint64 Book::shown(const Bet &bet) const
{
    return timesHot(bet) > 0 ? (bet.amount + 1) / 2 : bet.amount;
}

Board Book::board(size_t betClass, const QString &name) const
{
    const auto counts = [&](const Bet &line) {
        const auto customer = customers.find(line.customer);
        return line.betClass == betClass
               && (name.isEmpty()
                   || (customer != customers.end() && customer->second.name == name));
    };
    qint64 total = 0;
    std::set<std::tuple<qint64, qint64, QString>> rows; // the highest amount shown first
    for (const Bet &bet : sums(lines, counts)) {
        rows.insert({-shown(bet), -bet.amount, bet.number});
        total += bet.amount;
    }
    Board board;
    for (const auto &[shown, money, number] : rows)
        board.rows +=
            number + u'|' + baht(-shown) + (timesHot({betClass, number}) > 0 ? Hot : u""_s);
    if (!rows.empty())
        board = {board.rows, baht(total), baht(-std::get<0>(*rows.begin()) * rates[betClass])};
    return board;
}

QStringList Book::scan(bool top) const
{
    const auto bets =
        sums(lines, [&](const Bet &line) { return Classes[line.betClass].top == top; });
    std::map<std::tuple<int, qint64, QString, Type>, QString> rows; // most related lines first
    for (const Bet &bet : bets) {
        QString related;
        for (const Bet &other : bets) {
            if (isRelated(bet, other))
                related += u"%1  =  %2      ยอด  %3\r\n"_s.arg(Classes[other.betClass].type)
                               .arg(other.number)
                               .arg(other.amount);
        }
        const int count = int(related.count(u'\n'));
        const Type type = Classes[bet.betClass].type;
        if (count > 0)
            rows[{-count, -bet.amount, bet.number, type}] = u"%1|%2|%3|%4%|%5"_s.arg(
                Words[type], bet.number, baht(shown(bet)), QString::number(count), related);
    }
    QStringList inOrder;
    for (const auto &[place, row] : rows)
        inOrder += row;
    return inOrder;
}

/// A win for each customer and number, in the order of their list.
std::vector<Bet> Book::wins(const QString &result, const Bets &from) const
{
    std::map<std::tuple<QString, bool, Type, int, QString, int>, Bet> wins;
    for (const auto &[key, line] : from) {
        if (!isWon(line, result) || !customers.contains(line.customer))
            continue;
        const auto &[digits, top, type, caption] = Classes[line.betClass];
        const QString name = thaiOrder(customers.at(line.customer).name);
        Bet &win = wins[{name, !top, type, digits, line.number, line.customer}];
        win = {line.betClass, line.number, win.amount + line.amount, line.customer};
    }
    std::vector<Bet> inOrder;
    inOrder.reserve(wins.size());
    for (const auto &[place, win] : wins)
        inOrder.push_back(win);
    return inOrder;
}

QString Book::row(const Bet &win, qint64 payout) const
{
    const Class &what = Classes[win.betClass];
    const Customer &customer = customers.at(win.customer);
    return u"%1-%2| %3| %4|%5|%6| %7|0%8"_s.arg(Words[what.type], what.top ? u"บน"_s : u"ล่าง"_s,
                                                win.number, customer.percent, baht(win.amount),
                                                baht(payout), customer.name, customer.telephone);
}

Check Book::check(const QString &result)
{
    Check check;
    for (const auto &[key, line] : lines)
        check.profit += line.amount;
    qint64 discounted = 0;
    for (const auto &[key, amount] : discounts)
        discounted += amount;
    for (const Bet &win : wins(result, lines)) {
        qint64 payout = win.amount * rates[win.betClass];
        for (int left = timesHot(win); left > 0; --left) {
            check.fails = check.fails || payout == 0 || payout > Most;
            payout = (payout + 1) / 2;
        }
        check.payout += payout;
        check.fails = check.fails || payout == 0 || check.payout > Most;
        check.rows += row(win, payout) + (timesHot(win) > 0 ? Hot : u""_s);
    }
    check.fails = check.fails || (!check.rows.empty() && check.profit == discounted);
    check.profit -= check.rows.empty() ? discounted : check.payout;
    if (!check.fails)
        kept = toText(result, check.profit, check.payout);
    return check;
}

Check Book::checkCuts(const QString &result)
{
    Check check;
    for (const Bet &win : wins(result, cuts)) // which another pays
        check.rows += row(win, win.amount * rates[win.betClass]);
    if (check.rows.empty())
        kept = toText(result, 0, 0);
    return check;
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

void Book::wipe()
{
    Book wiped;
    wiped.rates = rates;
    wiped.kept = kept;
    *this = wiped;
}

QStringList Book::rows() const
{
    QStringList rows;
    for (const auto &[key, each] : customers)
        rows += joined(u"customer"_s, key, each.name, each.percent, each.telephone);
    for (const auto *table : {&lines, &cuts}) {
        for (const auto &[key, line] : *table) {
            const auto &[digits, top, type, caption] = Classes[line.betClass];
            rows += joined(table == &lines ? u"line"_s : u"cut"_s, key, line.customer, digits,
                           top ? -1 : 0, int(type), line.number, line.amount, u"sv"_s);
        }
    }
    for (const auto &[key, amount] : discounts)
        rows += joined(u"discount"_s, key, amount);
    for (const QString &number : hot)
        rows += joined(u"hot"_s, number);
    rows += u"rates"_s;
    for (const qint64 rate : rates)
        rows.last() += u' ' + QString::number(rate);
    rows += joined(u"result"_s, kept);
    for (const QString &draw : history)
        rows += joined(u"draw"_s, draw);
    return rows;
}

} // namespace model
