// SPDX-License-Identifier: MIT
#include "drawcheck/recount.h"

#include "support/testledger.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

struct Kind
{
    size_t digits;
    bool top;
    int type; // 1 straight, 2 tod, 3 run
    const char16_t *label;
};

constexpr std::array<Kind, 8> Kinds{{{3, true, 1, u"ตรง-บน"},
                                     {3, true, 2, u"โต๊ด-บน"},
                                     {2, true, 1, u"ตรง-บน"},
                                     {2, true, 2, u"โต๊ด-บน"},
                                     {1, true, 3, u"วิ่ง-บน"},
                                     {3, false, 1, u"ตรง-ล่าง"},
                                     {2, false, 1, u"ตรง-ล่าง"},
                                     {1, false, 3, u"วิ่ง-ล่าง"}}};

/// In the order of a Thai dictionary; the third and the fourth are namesakes.
const std::array<QString, 6> Names{u"กา"_s, u"เก"_s, u"ขา"_s, u"ขา"_s, u"แข"_s, u"มา"_s};

constexpr qint64 Most = std::numeric_limits<qint32>::max();

int percentOf(int customer)
{
    return 5 * (customer - 1);
}

QString sorted(QString digits)
{
    std::sort(digits.begin(), digits.end());
    return digits;
}

bool wins(const RecountLine &line, const QString &result)
{
    const QString top = result.left(3);
    const QString bottomTwo = result.right(2);
    switch (line.kind) {
    case 0:
        return line.number == top;
    case 1:
        return sorted(line.number) == sorted(top);
    case 2:
        return top.endsWith(line.number);
    case 3: {
        QString rest = top;
        const auto first = rest.indexOf(line.number[0]);
        return first >= 0 && rest.remove(first, 1).contains(line.number[1]);
    }
    case 4:
        return top.contains(line.number);
    case 5:
        for (int prize = 3; prize < 15; prize += 3) {
            if (result.mid(prize, 3) == line.number)
                return true;
        }
        return false;
    case 6:
        return line.number == bottomTwo;
    default:
        return bottomTwo.contains(line.number);
    }
}

QString money(qint64 amount)
{
    return amount == 0 ? QString() : QLocale(QLocale::English).toString(amount);
}

struct Win
{
    int kind;
    QString number;
    int customer;
    qint64 stake;

    auto place() const
    {
        const Kind &what = Kinds[size_t(kind)];
        const QString &name = Names[size_t(customer - 1)];
        const auto rank = std::find(Names.begin(), Names.end(), name) - Names.begin();
        return std::tuple(rank, !what.top, what.type, what.digits, number, customer);
    }
};

std::vector<Win> winsOf(const RecountDraw &draw)
{
    std::map<std::tuple<int, QString, int>, qint64> stakes;
    for (const RecountLine &line : draw.lines) {
        if (line.customer != 9 && wins(line, draw.result))
            stakes[{line.kind, line.number, line.customer}] += line.stake;
    }
    std::vector<Win> found;
    for (const auto &[who, stake] : stakes)
        found.push_back({std::get<0>(who), std::get<1>(who), std::get<2>(who), stake});
    std::sort(found.begin(), found.end(),
              [](const Win &one, const Win &other) { return one.place() < other.place(); });
    return found;
}

bool isHit(const Win &win, const QString &hot)
{
    const int type = Kinds[size_t(win.kind)].type;
    return (type == 1 && win.number == hot) || (type == 2 && sorted(win.number) == sorted(hot));
}

} // namespace

RecountOutcome recount(const RecountDraw &draw)
{
    RecountOutcome outcome{false, {}, u"0"_s, {}};
    qint64 total = 0;
    for (const Win &win : winsOf(draw)) {
        qint64 pay = win.stake * draw.rates[size_t(win.kind)];
        bool hit = false;
        for (const QString &hot : draw.hot) {
            if (!isHit(win, hot))
                continue;
            hit = true;
            outcome.fails |= pay == 0 || pay > Most;
            pay = (pay + 1) / 2;
        }
        total += pay;
        outcome.fails |= pay == 0 || total > Most;
        outcome.rows += QStringList{QString::fromUtf16(Kinds[size_t(win.kind)].label),
                                    u' ' + win.number,
                                    u' ' + QString::number(percentOf(win.customer)),
                                    money(win.stake),
                                    money(pay),
                                    u' ' + Names[size_t(win.customer - 1)],
                                    u'0' + QString::number(win.customer)}
                            .join(u'|')
                        + (hit ? u" hot"_s : u""_s);
    }
    qint64 taken = 0;
    for (const RecountLine &line : draw.lines)
        taken += line.stake;
    if (outcome.rows.isEmpty()) {
        outcome.profit = money(taken - draw.discounts);
        return outcome;
    }
    outcome.fails |= taken == draw.discounts;
    outcome.payout = money(total);
    outcome.profit = money(taken - total);
    return outcome;
}

RecountDraw throwDraw(std::mt19937 &dice)
{
    const auto upTo = [&](int most) { return std::uniform_int_distribution(0, most)(dice); };
    const int digitsInUse = 1 + upTo(4);
    const auto number = [&](size_t length) {
        QString digits;
        while (digits.size() < qsizetype(length))
            digits += QString::number(upTo(digitsInUse));
        return digits;
    };
    RecountDraw draw{number(17), {}, {}, {}, 0};
    const int lines = upTo(40);
    for (int at = 0; at < lines; ++at) {
        const int kind = upTo(7);
        const qint64 stake = upTo(200) == 0 ? upTo(1) * 9'000'000 : 1 + upTo(upTo(1) ? 40 : 99'998);
        draw.lines.push_back(
            {upTo(30) == 0 ? 9 : 1 + upTo(5), kind, number(Kinds[size_t(kind)].digits), stake});
        draw.discounts += upTo(5) == 0 ? stake / 10 : 0;
    }
    for (int hot = upTo(9); hot > 0; --hot)
        draw.hot += number(2 + size_t(upTo(1)));
    for (size_t kind = 0; kind < Kinds.size(); ++kind)
        draw.rates.push_back(upTo(60) == 0 ? 0 : 1 + upTo(upTo(3) ? 800 : 9));
    return draw;
}

void fileDraw(const RecountDraw &draw, const TestLedger &ledger)
{
    ledger.run(u"PRAGMA synchronous = OFF"_s); // thousands of rows
    for (const auto &table : {u"tblMember"_s, u"tblNumber"_s, u"tblNumberFix"_s, u"tblRMoney"_s})
        ledger.run(u"DELETE FROM "_s + table);
    for (int customer = 1; customer <= int(Names.size()); ++customer)
        ledger.run(u"INSERT INTO tblMember VALUES (?, ?, ?, ?)"_s,
                   {customer, Names[size_t(customer - 1)], customer,
                    QString::number(percentOf(customer))});
    for (const RecountLine &line : draw.lines) {
        const Kind &kind = Kinds[size_t(line.kind)];
        ledger.run(u"INSERT INTO tblNumber (NameFK, num23, updown, numType, numValue, numBuy)"
                   " VALUES (?, ?, ?, ?, ?, ?)"_s,
                   {line.customer, int(kind.digits), kind.top, kind.type, line.number, line.stake});
    }
    for (const QString &hot : draw.hot)
        ledger.run(u"INSERT INTO tblNumberFix (Fnumber) VALUES (?)"_s, {hot});
    ledger.run(u"INSERT INTO tblRMoney (rMoney) VALUES (?)"_s, {draw.discounts});
    QVariantList rates;
    for (const qint64 rate : draw.rates)
        rates += rate;
    ledger.run(u"UPDATE tblMoney SET [3up] = ?, [3tod] = ?, [2up] = ?, [2tod] = ?, runup = ?,"
               " [3down] = ?, [2down] = ?, rundown = ?"_s,
               rates);
}

QString toText(const RecountDraw &draw)
{
    QString text = u"result %1, hot %2, discounts %3, rates"_s.arg(draw.result, draw.hot.join(u','),
                                                                   QString::number(draw.discounts));
    for (const qint64 rate : draw.rates)
        text += u' ' + QString::number(rate);
    for (const RecountLine &line : draw.lines)
        text += u"\n  kind %1 %2 - %3 of %4"_s.arg(QString::number(line.kind), line.number,
                                                   QString::number(line.stake),
                                                   QString::number(line.customer));
    return text;
}
