// SPDX-License-Identifier: MIT
// A Ledger file written through the engine's own C interface, without any of the program's code:
// the yardstick for a save, and the quick way to a big Ledger.
#pragma once

#include "entry/vocabulary.h"

#include <QByteArray>
#include <QVariant>

#include <vector>

struct sqlite3;

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

/// Reads a Ledger that is not open elsewhere, with the settings that the program gives it. It keeps
/// the file open, and in memory what the engine keeps of it, until it dies.
class BareReader
{
public:
    explicit BareReader(const QByteArray &path);
    ~BareReader();
    Q_DISABLE_COPY_MOVE(BareReader)

    /// Runs the statements, each from its preparing to its end, and reads every field of every row.
    /// Gives the seconds that it took.
    double read(const BareStatements &statements);

private:
    sqlite3 *m_file;
};

/// Opens a closed Ledger with the settings that the program gives it and inserts the lines into
/// the empty tblNumber. Gives the seconds that the inserting took.
double insertBare(const QByteArray &path, const std::vector<BetLine> &lines, Durable durable);
