// SPDX-License-Identifier: MIT
// The rules of the trade, written a second time for the tests: what keyed lines put on a ticket,
// how it is saved and cut, what the boards, the risk scan and the draw check show of it, and what
// the end of a draw leaves. It shares no code with the program and prefers plain loops to speed.
#pragma once

#include <QStringList>

#include <array>
#include <functional>
#include <map>

namespace model {

enum Type { Straight = 1, Tod, Run };

/// A class of bet. Everything that exists once for each class is in the order of Classes.
struct Class
{
    int digits;
    bool top;
    Type type;
    const char16_t *caption;
};

inline constexpr std::array Classes{
    Class{3, true, Straight, u"3 ตัวตรง"},  Class{3, true, Tod, u"3 ตัวโต๊ด"},
    Class{2, true, Straight, u"2 ตัวตรง"},  Class{2, true, Tod, u"2 ตัวโต๊ด"},
    Class{1, true, Run, u"วิ่งบน"},          Class{3, false, Straight, u"3 ตัวล่าง"},
    Class{2, false, Straight, u"2 ตัวล่าง"}, Class{1, false, Run, u"วิ่งล่าง"},
};

/// Whole baht as shown: "1,050", "" for 0.
QString baht(qint64 amount);

qint64 discountOn(qint64 total, int percent);

struct Bet
{
    size_t betClass;
    QString number;
    qint64 amount = 0;
    int customer = 0; ///< unless it is on a ticket or stands for all customers

    const Class &what() const { return Classes[betClass]; }
    bool operator==(const QString &other) const { return number == other; }
};

/// The bets of each class, the newest first.
struct Ticket
{
    /// Adds what a line keyed under the kind of that caption asks for. False: refused.
    bool key(const QString &caption, const QString &line);

    /// Adds to the bet on a number, or makes a new first one.
    void add(size_t betClass, const QString &number, qint64 amount);

    QStringList rows(size_t betClass) const; ///< such as "123|1,050"
    QList<Bet> inOrderOfSaving() const;
    qint64 total() const;

    std::array<QList<Bet>, Classes.size()> bets;
    bool showsTop = false; ///< the tab after the last line that was accepted
};

struct Customer
{
    QString name;
    QString percent = QStringLiteral("0");
    QString telephone{};
};

/// Called between two statements of an operation, where a kill leaves half of it.
using Between = std::function<void()>;
inline void nothing() {}

/// The book of one draw, and what outlives it. Lines and discounts have the keys of the Ledger.
struct Book
{
    using Bets = std::map<int, Bet>;

    /// Key of the first customer of that name, who is registered if new.
    int customer(const QString &name);

    void file(const QString &name, Bet bet, const Between &between = nothing);
    void addDiscount(qint64 amount);
    void cut(int key, qint64 amount, const Between &between = nothing);
    void close(const Between &between = nothing);

    /// The lines on a number, the biggest first, such as "17|1,050 " with their keys.
    QStringList linesOn(size_t betClass, const QString &number) const;

    /// All bets of a class, or those of one customer: total and estimate such as "1,050|73,500",
    /// then rows such as "12|1,050", " hot" behind a halved one.
    QStringList board(size_t betClass, int ofCustomer = -1) const;

    /// Rows of the risk scan of a side: type, number, money, count and related lines.
    QStringList scan(bool top) const;

    /// Checks seventeen digits against the book or the lines cut out: a row for each winner, " hot"
    /// behind a halved one, then payout and profit. Nothing if it fails, as it does on an amount of
    /// 0 or one beyond 32 bits. Result and amounts are kept unless it fails or a cut wins.
    QStringList check(const QString &result, bool ofCuts = false);

    /// What the Ledger holds, a text for each row.
    QStringList rows() const;

    std::map<int, Customer> customers{{0, {.name = QStringLiteral("-")}}};
    QStringList hot;
    std::array<qint64, Classes.size()> rates{500, 100, 70, 12, 3, 100, 70, 4};
    Bets lines;
    Bets cuts;
    std::map<int, qint64> discounts;
    QString kept = QStringLiteral("      0 0"); ///< result and amounts of the last check
    QStringList history;
};

} // namespace model
