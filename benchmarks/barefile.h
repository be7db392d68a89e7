// SPDX-License-Identifier: MIT
// A Ledger file written through the engine's own C interface, without any of the program's code:
// the yardstick for a save, and the quick way to a big Ledger.
#pragma once

#include "entry/vocabulary.h"

#include <QByteArray>
#include <QVariant>

#include <vector>

/// A bet line of 20 baht as it stands in the Ledger.
struct BetLine
{
    const BetClass *betClass;
    int customer;
    QByteArray number;
};

enum class Durable { EachLine, AllAtOnce };

/// A reading statement with what is bound to its question marks: whole numbers and texts.
struct BareStatement
{
    QByteArray sql;
    QVariantList values;
};

using BareStatements = std::vector<BareStatement>;

/// Opens a closed Ledger with the settings that the program gives it, runs the statements
/// @p rounds times, each from its preparing to its end, and reads every field of every row. Gives
/// the seconds of each round. What runs @p before them in each round is not counted.
std::vector<double> selectBare(const QByteArray &path, const BareStatements &before,
                               const BareStatements &statements, int rounds);

/// Opens a closed Ledger with the settings that the program gives it and inserts the lines into
/// the empty tblNumber. Gives the seconds that the inserting took.
double insertBare(const QByteArray &path, const std::vector<BetLine> &lines, Durable durable);
