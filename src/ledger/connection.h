// SPDX-License-Identifier: MIT
// The open Ledger file: one encrypted database, one connection, statements with bound values.
// Each statement is durable when it returns.
#pragma once

#include "ledger/database.h"

#include <memory>

class WalKeeper;

inline constexpr const char *LedgerPassword = "639417";

/// An object that exists is an open, working Ledger. Every member raises RunTimeError
/// DatabaseFailure with SQLite's words when SQLite fails.
///
/// Before and after each statement that writes, and before the file is closed, the path still has to
/// lead to the open file. If it does not, what the open file holds is written to a new one beside
/// it, and FatalError says so.
class Connection
{
public:
    /// Opens an existing Ledger for this process alone. Never creates or alters a file: one that
    /// is missing, empty, foreign, damaged, wrongly keyed or not writable is refused. A WAL of
    /// another file is renamed.
    static std::unique_ptr<Connection> open(const QString &path,
                                            const QByteArray &password = LedgerPassword);

    /// Makes a new, empty, encrypted database file for the maker of the empty Ledger. Raises
    /// when a file of that name exists.
    static std::unique_ptr<Connection> create(const QString &path,
                                              const QByteArray &password = LedgerPassword);

    /// Closes the file. Errors are passed over: what is not moved into the file stays in the WAL.
    ~Connection();
    Q_DISABLE_COPY_MOVE(Connection)

    /// Runs a statement with @p values bound to its question marks; gives what it reads.
    /// Booleans of the tables are -1 and 0. Numbers come back as qlonglong or double, texts as
    /// QString, NULL as an invalid QVariant.
    ResultRows run(const QString &sql, const QVariantList &values = {});

    /// Moves the WAL into the file, where deleted rows are overwritten only then.
    void moveWalIntoFile();

    /// Raises FatalError if the path leads to another file by now. To be called before closing.
    void requireOwnFile();

    /// Has the WAL be moved into the file when it has @p pages. Only tests set another number than
    /// the default.
    void setMostWalPages(int pages);

private:
    struct Place;

    Connection(std::unique_ptr<Place> place, Database::Access access);

    bool isInPlace() const;
    void prepareToWrite();

    std::unique_ptr<Place> m_place;
    Database m_database;
    std::unique_ptr<WalKeeper> m_wal; ///< none while the file is being made
    bool m_lost = false;              ///< and reported
};
