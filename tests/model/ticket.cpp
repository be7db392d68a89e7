// SPDX-License-Identifier: MIT
#include "model/trade.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace model {

namespace {

enum class Way { Plain, DigitsDiffer, Turned, Doors, Doubles };

/// A kind of line, with the classes for a number of 0, 1, 2 and 3 digits. No class: refused.
struct Kind
{
    const char16_t *caption;
    Way way;
    bool top;
    std::array<const char *, 4> classes;
};

constexpr std::array Kinds{
    Kind{u"บน", Way::Plain, true, {"", "", "2", "0"}},
    Kind{u"โต๊ด", Way::DigitsDiffer, true, {"", "", "3", "1"}},
    Kind{u"ล่าง", Way::Plain, false, {"", "", "6", "5"}},
    Kind{u"วิ่งบน", Way::Plain, true, {"", "4", "", ""}},
    Kind{u"วิ่งล่าง", Way::Plain, false, {"", "7", "", ""}},
    Kind{u"กลับบน", Way::Turned, true, {"", "", "2", "0"}},
    Kind{u"กลับล่าง", Way::Turned, false, {"", "", "6", "5"}},
    Kind{u"ตรง+โต๊ด", Way::DigitsDiffer, true, {"", "", "23", "01"}},
    Kind{u"บน+ล่าง", Way::Plain, true, {"", "74", "62", "50"}},
    Kind{u"19 ประตู (บน)", Way::Doors, true, {"", "2", "", ""}},
    Kind{u"00-99 (บน)", Way::Doubles, true, {"2", "", "", ""}},
    Kind{u"19 ประตู (ล่าง)", Way::Doors, false, {"", "6", "", ""}},
    Kind{u"00-99 (ล่าง)", Way::Doubles, false, {"6", "", "", ""}},
};

/// All numbers of a line in the order of writing.
QStringList numbersOf(Way way, const QString &number)
{
    QStringList numbers;
    const auto add = [&](const char *orders) { // as places counted from 0
        for (const QByteArray &order : QByteArray(orders).split(' ')) {
            numbers += QString();
            for (const char place : order)
                numbers.last() += number[place - '0'];
        }
    };
    if (way == Way::Doors || way == Way::Doubles) {
        for (const QChar digit : u"0123456789"_s)
            numbers += way == Way::Doors ? number + digit : QString(2, digit);
        for (const QChar digit : way == Way::Doors ? u"0123456789"_s.remove(number) : QString())
            numbers += digit + number;
    } else if (way != Way::Turned) {
        numbers += number;
    } else if (number.size() == 2) {
        add("01 10");
    } else if (number[0] == number[1]) {
        add("012 210 021");
    } else if (number[0] == number[2]) {
        add("012 102 021");
    } else {
        add(number[1] == number[2] ? "012 120 201" : "012 210 201 120 102 021");
    }
    return numbers;
}

/// Place of a number among the bets of a class, or -1.
int placeOf(const std::vector<Bet> &bets, const QString &number)
{
    const auto bet = std::find_if(bets.begin(), bets.end(),
                                  [&](const Bet &each) { return each.number == number; });
    return bet == bets.end() ? -1 : int(bet - bets.begin());
}

void addAt(std::vector<Bet> &bets, int place, const Bet &bet)
{
    if (place < 0)
        bets.insert(bets.begin(), bet);
    else
        bets[size_t(place)].amount += bet.amount;
}

} // namespace

QString baht(qint64 amount)
{
    return amount == 0 ? QString() : QLocale(QLocale::English).toString(amount);
}

qint64 discountOn(qint64 total, int percent)
{
    return (total * percent + 50) / 100; // to the nearest baht
}

bool Ticket::key(const QString &caption, const QString &line)
{
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(u"(\\d{0,3})-(\\d{1,5})(?:-(\\d{1,5}))?"_s));
    const auto *const kind = std::find_if(Kinds.begin(), Kinds.end(), [&](const Kind &each) {
        return caption == QStringView(each.caption);
    });
    const auto parts = form.match(line);
    if (kind == Kinds.end() || !parts.hasMatch())
        return false;
    const QString number = parts.captured(1);
    const qint64 amount = parts.captured(2).toLongLong();
    const qint64 others = parts.captured(3).toLongLong();
    const QByteArray classes = kind->classes[size_t(number.size())];
    const bool turned = kind->way == Way::Turned;
    if (classes.isEmpty() || amount < 1 || parts.hasCaptured(3) != turned || (turned && others < 1)
        || ((turned || kind->way == Way::DigitsDiffer)
            && number == QString(number.size(), number[0])))
        return false;
    showsTop = kind->top;
    for (const char digit : classes) {
        const auto betClass = size_t(digit - '0');
        std::vector<Bet> &same = bets[betClass];
        const std::vector<Bet> before = same;
        qint64 next = amount;
        for (const QString &each : numbersOf(kind->way, number)) {
            // Turned numbers are all looked up before the first is written. A new one moves the
            // bets, and the amount goes to the bet that is in the place by then.
            addAt(same, placeOf(turned ? before : same, each), {betClass, each, next});
            next = turned ? others : amount;
        }
    }
    return true;
}

void Ticket::add(size_t betClass, const QString &number, qint64 amount)
{
    addAt(bets[betClass], placeOf(bets[betClass], number), {betClass, number, amount});
}

QStringList Ticket::rows() const
{
    QStringList rows;
    for (const std::vector<Bet> &same : bets) {
        for (const Bet &bet : same)
            rows +=
                u"%1: %2=%3"_s.arg(QString::number(bet.betClass + 1), bet.number, baht(bet.amount));
    }
    return rows;
}

std::vector<Bet> Ticket::inOrderOfSaving() const
{
    std::vector<Bet> all;
    for (const size_t betClass : {0, 1, 3, 2, 4, 5, 6, 7})
        all.insert(all.end(), bets[betClass].begin(), bets[betClass].end());
    return all;
}

qint64 Ticket::total() const
{
    const std::vector<Bet> all = inOrderOfSaving();
    return std::accumulate(all.begin(), all.end(), qint64(0),
                           [](qint64 sum, const Bet &bet) { return sum + bet.amount; });
}

} // namespace model
