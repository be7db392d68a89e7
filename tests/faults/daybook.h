// SPDX-License-Identifier: MIT
// A day of work on a book, step by step: done by the program on a Ledger, and done a second time
// by hand, which tells every state that the Ledger may ever be found in.
#pragma once

#include "entry/ticket.h"

#include <QMap>
#include <QRandomGenerator>
#include <QStringList>

#include <functional>
#include <vector>

class Connection;

/// One thing that is done to a book.
struct Step
{
    enum Kind { File, Cut, Check, Close };

    /// Throws one with dice; a @p small one is a ticket of few lines, with a discount.
    Step(Kind what, QRandomGenerator &dice, bool small);

    Ticket ticket;    ///< over all eight grids
    QString customer; ///< may be new
    QString discount; ///< may be ""
    QString result;   ///< seventeen digits
    quint32 line;     ///< which line is cut, modulo their count
    quint32 part;     ///< how much of it
    Kind kind;

    /// What is laid off of a line: all of it once in three times.
    int partOf(int amount) const
    {
        return part % 3 == 0 ? amount : 1 + int(part % quint32(amount));
    }

    /// Does it as the program does; @p done is called behind each row of a ticket and behind
    /// every other step, when all of it is durable.
    void perform(const std::function<void()> &done) const;
};

/// The steps of a day, the same for the same seed. What cannot be done to an empty book is not
/// thrown for one.
class Day
{
public:
    /// With @p kinds the day has these steps and then ends; else it goes on for ever. Small days
    /// have small tickets.
    explicit Day(quint32 seed, std::vector<Step::Kind> kinds = {}, bool small = false);

    bool isOver() const { return m_given && m_kinds.empty(); }
    Step next(qsizetype lines);

    /// Does the day, or @p steps of it, on the open Ledger.
    void perform(const std::function<void()> &done, int steps = 1'000'000);

private:
    Step::Kind kind(qsizetype lines);

    QRandomGenerator m_dice;
    std::vector<Step::Kind> m_kinds;
    bool m_given;
    bool m_small;
};

/// What a book holds.
class DayBook
{
public:
    /// The texts of all rows: customers, lines, cut lines, discounts, result, history.
    QStringList rows() const;

    /// The same of a Ledger that its owner left as it stood, by whatever death, read from a copy,
    /// so that the next owner meets the journal that was left to it. Instead of rows it gives what
    /// is wrong if the file does not open, or is not sound in each of its pages.
    static QStringList rowsLeftIn(const QString &ledger, const QByteArray &key);

    /// Has the book go on to what was found of it: the state behind the day's step or row that was
    /// acknowledged last, or one on the way to the next. False if it is none of these.
    bool goOn(Day day, qsizetype acknowledged, const QStringList &found);

private:
    struct Line
    {
        QString customer;
        int betClass;
        QString number; ///< of tod the digits in order, since it may be filed in any
        int amount;
    };
    using Passed = std::function<void(bool acknowledged)>;

    void file(const Step &step, const Passed &passed);
    void cut(const Step &step, const Passed &passed);
    void check(const Step &step, const Passed &passed);
    void close(const Passed &passed);

    QStringList m_customers;
    QMap<int, Line> m_lines; ///< by their keys
    QMap<int, Line> m_cuts;
    QMap<int, int> m_discounts;
    QString m_result = QStringLiteral(",,,,,,0,0");
    QStringList m_history;
};
