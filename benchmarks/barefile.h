// SPDX-License-Identifier: MIT
// Reads and writes a Ledger through SQLite's C interface, without the program's own code: the
// reference for ratios, and the fast way to fill a Ledger.
#pragma once

#include "entry/vocabulary.h"

#include <QByteArray>
#include <QVariant>

#include <vector>

struct sqlite3;

/// A bet line of 20 baht, as stored in the Ledger.
struct BetLine
{
    const BetClass *betClass;
    int customer;
    QByteArray number;
};

/// Whether each line is written to the disk by itself or all lines in one transaction.
enum class Durable { EachLine, AllAtOnce };

/// A SELECT statement with its bound values: integers and texts.
struct BareStatement
{
    QByteArray sql;
    QVariantList values;
};

using BareStatements = std::vector<BareStatement>;

/// Reads a Ledger with the program's settings. The file must not be open elsewhere. It stays open,
/// with SQLite's page cache, as long as the object exists.
class BareReader
{
public:
    explicit BareReader(const QByteArray &path);
    ~BareReader();
    Q_DISABLE_COPY_MOVE(BareReader)

    /// Prepares and runs the statements and reads every field of every row. Returns the seconds
    /// taken.
    double read(const BareStatements &statements);

private:
    sqlite3 *m_file;
};

/// Opens a closed Ledger with the program's settings and inserts the lines into its empty
/// tblNumber. Returns the seconds taken by the inserts.
double insertBare(const QByteArray &path, const std::vector<BetLine> &lines, Durable durable);
