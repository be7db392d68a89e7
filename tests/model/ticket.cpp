// SPDX-License-Identifier: MIT
#include "model/trade.h"

#include <QLocale>
#include <QMap>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace model {

namespace {

enum Way { Plain, DigitsDiffer, Turned, Doors, Doubles };

/// A kind of line, with the classes for a number of 0, 1, 2 and 3 digits. No class: refused.
struct Kind
{
    Way way = Plain;
    bool top = false;
    QByteArrayList classes{};
};

const QMap<QString, Kind> Kinds{
    {u"บน"_s, {Plain, true, {"", "", "2", "0"}}},
    {u"โต๊ด"_s, {DigitsDiffer, true, {"", "", "3", "1"}}},
    {u"ล่าง"_s, {Plain, false, {"", "", "6", "5"}}},
    {u"วิ่งบน"_s, {Plain, true, {"", "4"}}},
    {u"วิ่งล่าง"_s, {Plain, false, {"", "7"}}},
    {u"กลับบน"_s, {Turned, true, {"", "", "2", "0"}}},
    {u"กลับล่าง"_s, {Turned, false, {"", "", "6", "5"}}},
    {u"ตรง+โต๊ด"_s, {DigitsDiffer, true, {"", "", "23", "01"}}},
    {u"บน+ล่าง"_s, {Plain, true, {"", "74", "62", "50"}}},
    {u"19 ประตู (บน)"_s, {Doors, true, {"", "2"}}},
    {u"00-99 (บน)"_s, {Doubles, true, {"2"}}},
    {u"19 ประตู (ล่าง)"_s, {Doors, false, {"", "6"}}},
    {u"00-99 (ล่าง)"_s, {Doubles, false, {"6"}}},
};

/// All numbers of a line in the order of writing.
QStringList numbersOf(Way way, const QString &number)
{
    QStringList numbers{number};
    if (way == Turned) {
        // With equal digits, several orders read the same, and the first of them counts.
        constexpr std::array orders{"210", "201", "120", "102", "021"};
        for (size_t at = number.first(1) == number.mid(2) ? 3 : 0; at < orders.size(); ++at)
            numbers += number.mid(orders[at][0] - '0', 1) + number.mid(orders[at][1] - '0', 1)
                       + number.mid(orders[at][2] - '0', 1);
    } else if (way == Doors || way == Doubles) {
        numbers.clear();
        for (const QChar digit : u"0123456789"_s)
            numbers += (way == Doors ? number : digit) + digit;
        for (const QChar digit : way == Doors ? u"0123456789"_s : QString())
            numbers += digit + number;
    }
    numbers.removeDuplicates();
    return numbers;
}

void addAt(QList<Bet> &bets, qsizetype place, const Bet &bet)
{
    if (place < 0)
        bets.prepend(bet);
    else
        bets[place].amount += bet.amount;
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
    static const QRegularExpression form(u"^(\\d{0,3})-(\\d{1,5})(?:-(\\d{1,5}))?\\z"_s);
    const Kind kind = Kinds.value(caption);
    const auto parts = form.match(line);
    const QString number = parts.captured(1);
    const bool turned = kind.way == Turned;
    qint64 amount = parts.captured(2).toLongLong();
    const qint64 others = turned ? parts.captured(3).toLongLong() : amount;
    const QByteArray classes = kind.classes.value(number.size());
    const bool needsOrders = turned || kind.way == DigitsDiffer;
    if (classes.isEmpty() || amount < 1 || others < 1 || parts.hasCaptured(3) != turned
        || (needsOrders && number.count(number[0]) == number.size()))
        return false;
    showsTop = kind.top;
    for (const char digit : classes) {
        const auto betClass = size_t(digit - '0');
        QList<Bet> &same = bets[betClass];
        const QList<Bet> before = same;
        for (const QString &each : numbersOf(kind.way, number)) {
            // Turned numbers are all looked up before the first is written. A new one moves the
            // bets, and the amount goes to the bet that is in the place by then.
            addAt(same, (turned ? before : same).indexOf(each), {betClass, each, amount});
            if (turned)
                amount = others;
        }
    }
    return true;
}

void Ticket::add(size_t betClass, const QString &number, qint64 amount)
{
    addAt(bets[betClass], bets[betClass].indexOf(number), {betClass, number, amount});
}

QStringList Ticket::rows(size_t betClass) const
{
    QStringList rows;
    for (const Bet &bet : bets[betClass])
        rows += bet.number + u'|' + baht(bet.amount);
    return rows;
}

QList<Bet> Ticket::inOrderOfSaving() const
{
    QList<Bet> all;
    for (const size_t betClass : {0, 1, 3, 2, 4, 5, 6, 7})
        all += bets[betClass];
    return all;
}

qint64 Ticket::total() const
{
    qint64 total = 0;
    for (const Bet &bet : inOrderOfSaving())
        total += bet.amount;
    return total;
}

} // namespace model
