// SPDX-License-Identifier: MIT
#include "law/pencil.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;

namespace {

enum class Way { Plain, OrdersDiffer, Turned, Doors, Doubles };

/// A kind of bet: how it is told, which side is looked at afterwards, and the columns that a number
/// of 0, 1, 2 and 3 digits is written to, one digit for each. No column: refused.
struct Kind
{
    const char16_t *caption;
    Way way;
    bool top;
    std::array<const char *, 4> columns;
};

constexpr std::array Kinds{
    Kind{u"บน", Way::Plain, true, {"", "", "2", "0"}},
    Kind{u"โต๊ด", Way::OrdersDiffer, true, {"", "", "3", "1"}},
    Kind{u"ล่าง", Way::Plain, false, {"", "", "6", "5"}},
    Kind{u"วิ่งบน", Way::Plain, true, {"", "4", "", ""}},
    Kind{u"วิ่งล่าง", Way::Plain, false, {"", "7", "", ""}},
    Kind{u"กลับบน", Way::Turned, true, {"", "", "2", "0"}},
    Kind{u"กลับล่าง", Way::Turned, false, {"", "", "6", "5"}},
    Kind{u"ตรง+โต๊ด", Way::OrdersDiffer, true, {"", "", "23", "01"}},
    Kind{u"บน+ล่าง", Way::Plain, true, {"", "74", "62", "50"}},
    Kind{u"19 ประตู (บน)", Way::Doors, true, {"", "2", "", ""}},
    Kind{u"00-99 (บน)", Way::Doubles, true, {"2", "", "", ""}},
    Kind{u"19 ประตู (ล่าง)", Way::Doors, false, {"", "6", "", ""}},
    Kind{u"00-99 (ล่าง)", Way::Doubles, false, {"6", "", "", ""}},
};

/// Digits, side and kind of each column as the Ledger tells them.
constexpr std::array<const char16_t *, PencilColumns> Classes{
    u"3 -1 1", u"3 -1 2", u"2 -1 1", u"2 -1 2", u"1 -1 3", u"3 0 1", u"2 0 1", u"1 0 3"};

QString sorted(QString digits)
{
    std::sort(digits.begin(), digits.end());
    return digits;
}

bool holdsAPair(const QString &number)
{
    const QString digits = sorted(number);
    return std::adjacent_find(digits.begin(), digits.end()) != digits.end();
}

using Column = std::vector<PencilSlip::Row>;

/// Place of a number, or that behind the last.
size_t placeOf(const Column &column, const QString &number)
{
    const auto row = std::find_if(column.begin(), column.end(),
                                  [&](const auto &each) { return each.number == number; });
    return size_t(row - column.begin());
}

void write(Column &column, const QString &number, qint64 amount)
{
    const size_t place = placeOf(column, number);
    if (place < column.size())
        column[place].amount += amount;
    else
        column.insert(column.begin(), {number, amount});
}

/// The number and its other orders in the order of writing, places counted from 0.
std::vector<QString> turned(const QString &number)
{
    QByteArray orders = "012 210 201 120 102 021";
    if (number.size() == 2)
        orders = "01 10";
    else if (number[0] == number[1])
        orders = "012 210 021";
    else if (number[0] == number[2])
        orders = "012 102 021";
    else if (number[1] == number[2])
        orders = "012 120 201";
    std::vector<QString> numbers;
    for (const QByteArray &order : orders.split(' ')) {
        QString next;
        for (const char place : order)
            next += number[place - '0'];
        numbers.push_back(next);
    }
    return numbers;
}

/// All places are looked up before the first number is written; a new one on top moves the rows
/// but not the places noted.
void writeTurned(Column &column, const QString &number, const std::array<qint64, 2> &amounts)
{
    const std::vector<QString> numbers = turned(number);
    std::vector<size_t> noted;
    for (const QString &each : numbers) {
        const size_t place = placeOf(column, each);
        noted.push_back(place < column.size() ? place : SIZE_MAX);
    }
    for (size_t at = 0; at < numbers.size(); ++at) {
        if (noted[at] == SIZE_MAX)
            column.insert(column.begin(), {numbers[at], amounts[at > 0]});
        else
            column[noted[at]].amount += amounts[at > 0];
    }
}

/// Tells whether the board marks a number as hot.
bool isHot(size_t column, const QString &number, const QStringList &hot)
{
    return std::any_of(hot.begin(), hot.end(), [&](const QString &each) {
        switch (column) {
        case 1:
        case 3:
            return sorted(each) == sorted(number);
        case 4:
        case 7:
            return false;
        default:
            return each == number;
        }
    });
}

int nextKey(const std::map<int, PencilLine> &lines)
{
    return lines.empty() ? 1 : lines.rbegin()->first + 1;
}

} // namespace

QString pencilled(qint64 amount)
{
    return amount == 0 ? QString() : QLocale(QLocale::English).toString(amount);
}

bool PencilSlip::key(const QString &caption, const QString &line)
{
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(u"(\\d{0,3})-(\\d{1,5})(?:-(\\d{1,5}))?"_s));
    const auto kind = std::find_if(Kinds.begin(), Kinds.end(), [&](const Kind &each) {
        return caption == QStringView(each.caption);
    });
    const auto parts = form.match(line);
    if (kind == Kinds.end() || !parts.hasMatch())
        return false;
    const QString number = parts.captured(1);
    const bool second = parts.hasCaptured(3);
    const std::array amounts{parts.captured(2).toLongLong(), parts.captured(3).toLongLong()};
    const QByteArray targets = kind->columns[size_t(number.size())];
    const bool ordersMatter = kind->way == Way::OrdersDiffer || kind->way == Way::Turned;
    if (second != (kind->way == Way::Turned) || amounts[0] < 1 || (second && amounts[1] < 1)
        || targets.isEmpty() || (ordersMatter && number == QString(number.size(), number[0])))
        return false;
    topShown = kind->top;
    for (const char target : targets) {
        Column &column = columns[size_t(target - '0')];
        if (kind->way == Way::Turned) {
            writeTurned(column, number, amounts);
        } else if (kind->way == Way::Plain || kind->way == Way::OrdersDiffer) {
            write(column, number, amounts[0]);
        } else {
            for (const QChar digit : u"0123456789"_s)
                write(column, kind->way == Way::Doors ? number + digit : QString(2, digit),
                      amounts[0]);
            for (const QChar digit : u"0123456789"_s) {
                if (kind->way == Way::Doors && digit != number[0])
                    write(column, digit + number, amounts[0]);
            }
        }
    }
    return true;
}

QStringList PencilSlip::rows() const
{
    QStringList rows;
    for (size_t at = 0; at < columns.size(); ++at) {
        for (const Row &row : columns[at])
            rows += u"%1: %2=%3"_s.arg(QString::number(at + 1), row.number, pencilled(row.amount));
    }
    return rows;
}

std::array<qint64, PencilColumns> PencilSlip::totals() const
{
    std::array<qint64, PencilColumns> totals{};
    for (size_t at = 0; at < columns.size(); ++at) {
        for (const Row &row : columns[at])
            totals[at] += row.amount;
    }
    return totals;
}

/// All tod bets on one family of digits are to stand under one spelling: the lowest one on file.
/// The keyed order counts only if another order of its digits reads the same.
QString PencilBook::spelling(size_t column, const QString &number) const
{
    std::set<QString> onFile;
    for (const auto &[key, line] : lines) {
        if (line.column == column && sorted(line.number) == sorted(number)
            && (line.number != number || holdsAPair(number)))
            onFile.insert(line.number);
    }
    return onFile.empty() ? number : *onFile.begin();
}

void PencilBook::file(const PencilSlip &slip, int customer)
{
    for (const size_t column : {0, 1, 3, 2, 4, 5, 6, 7}) {
        for (const auto &row : slip.columns[column]) {
            const bool tod = column == 1 || column == 3;
            const QString number = tod ? spelling(column, row.number) : row.number;
            lines[nextKey(lines)] = {customer, column, number, row.amount};
        }
    }
}

void PencilBook::cut(int key, qint64 amount)
{
    PencilLine &line = lines.at(key);
    cuts[nextKey(cuts)] = {line.customer, line.column, line.number, amount};
    line.amount -= amount;
    if (line.amount == 0)
        remove(key);
}

std::vector<int> PencilBook::keysOn(size_t column, const QString &number) const
{
    std::vector<int> keys;
    for (const auto &[key, line] : lines) {
        if (line.column == column && line.number == number)
            keys.push_back(key);
    }
    std::stable_sort(keys.begin(), keys.end(), [&](int one, int other) {
        return lines.at(one).amount > lines.at(other).amount;
    });
    return keys;
}

QStringList PencilBook::board(size_t column, const QStringList &hot, int customer) const
{
    std::map<QString, qint64> money;
    for (const auto &[key, line] : lines) {
        if (line.column == column && (customer == 0 || line.customer == customer))
            money[line.number] += line.amount;
    }
    // Halved money decides on the place, then the money in full, then the number.
    std::vector<std::tuple<qint64, qint64, QString, bool>> rows;
    for (const auto &[number, full] : money) {
        const bool halved = isHot(column, number, hot);
        rows.emplace_back(-(halved ? (full + 1) / 2 : full), -full, number, halved);
    }
    std::sort(rows.begin(), rows.end());
    QStringList texts;
    for (const auto &[shown, full, number, halved] : rows)
        texts += number + u'|' + pencilled(-shown) + (halved ? u" hot"_s : u""_s);
    return texts;
}

qint64 PencilBook::total(size_t column, int customer) const
{
    qint64 sum = 0;
    for (const auto &[key, line] : lines)
        sum +=
            line.column == column && (customer == 0 || line.customer == customer) ? line.amount : 0;
    return sum;
}

QStringList toTexts(const std::map<int, PencilLine> &lines)
{
    QStringList texts;
    for (const auto &[key, line] : lines)
        texts += u"%1 %2 %3 %4 %5"_s.arg(QString::number(key), QString::number(line.customer),
                                         QString::fromUtf16(Classes[line.column]), line.number,
                                         QString::number(line.amount));
    return texts;
}
