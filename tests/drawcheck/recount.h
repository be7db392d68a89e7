// SPDX-License-Identifier: MIT
// The draw check done a second time, as a clerk would with the list of bets and a pencil: line by
// line, by the rules of the lottery. It shares no statement, table or conversion with the program.
#pragma once

#include <QStringList>

#include <random>
#include <vector>

class TestLedger;

struct RecountLine
{
    int customer; ///< 1 to 6; 9 is nobody
    int kind;     ///< 0 to 7 in the order of the boards
    QString number;
    qint64 stake;
};

/// A draw thrown with dice, few digits in use, so that many lines win.
struct RecountDraw
{
    QString result; ///< seventeen digits
    std::vector<RecountLine> lines;
    QStringList hot;
    std::vector<qint64> rates; ///< in the order of the boards
    qint64 discounts;
};

/// What the check has to come to.
struct RecountOutcome
{
    bool fails = false; ///< a payout of 0, or one too big, ends the program
    QStringList rows;   ///< cells parted by "|", " hot" behind a halved one
    QString payout;
    QString profit;
};

RecountDraw throwDraw(std::mt19937 &dice);

/// Files a draw in the Ledger in place of the one before.
void fileDraw(const RecountDraw &draw, const TestLedger &ledger);

RecountOutcome recount(const RecountDraw &draw);

/// A draw as text, for the report of a difference.
QString toText(const RecountDraw &draw);
