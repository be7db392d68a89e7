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

/// Opens a closed Ledger with the settings that the program gives it and inserts the lines into
/// the empty tblNumber. Gives the seconds that the inserting took.
double insertBare(const QByteArray &path, const std::vector<BetLine> &lines, Durable durable);

/// Runs a reading statement, whose values are texts, on a closed Ledger with the settings that the
/// program gives it. Gives the seconds until its last row was read.
double readBare(const QByteArray &path, const QString &sql, const QVariantList &values);
