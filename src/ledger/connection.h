// SPDX-License-Identifier: MIT
// The open Ledger file: one encrypted database, one connection, statements with bound values.
// Each statement is durable when it returns.
#pragma once

#include "ledger/database.h"

#include <memory>

class WalKeeper;

/// The password of all Ledgers. It is in the source, so it keeps nothing secret.
inline constexpr const char *LedgerPassword = "639417";

/// Exists only while the Ledger is open and usable: open() and create() throw otherwise. All
/// members throw RunTimeError DatabaseFailure with SQLite's error message if SQLite fails.
///
/// The file or its WAL may be deleted or replaced while it is open. This is checked before and
/// after each statement that writes, and by requireOwnFile(). If it has happened, all data is
/// written to a new file, see rescue(), and FatalError is thrown with its path.
class Connection
{
public:
    /// Opens an existing Ledger for this process alone. Throws if the file is missing, empty, not a
    /// Ledger, damaged, encrypted with another password, not writable or in use. Damage within a file
    /// of more than 4 MB is found only after a crash, or once a statement reads the page.
    ///
    /// Never creates a Ledger and changes no rows, but does write: a temporary file beside the
    /// Ledger probes whether the folder is writable, and SQLite creates the WAL. A WAL of another
    /// file is renamed. To recognise one, the Ledger's first page, of which a WAL contains copies, is
    /// written to temporary files and read from there. Other users lose their permissions on a Ledger
    /// that this user owns.
    /// After a crash, damaged indexes are rebuilt, and the WAL is checkpointed if the file has an
    /// incomplete last page.
    static std::unique_ptr<Connection> open(const QString &path,
                                            const QByteArray &password = LedgerPassword);

    /// Creates an encrypted database file without tables, for makeEmptyLedger(), which only its owner
    /// can read and write. Throws if the file or its WAL exists.
    static std::unique_ptr<Connection> create(const QString &path,
                                              const QByteArray &password = LedgerPassword);

    /// Closes the file. Errors are ignored: the WAL keeps what could not be moved into the file. A
    /// file that was deleted or replaced is left open, see Database::leaveOpen().
    ~Connection();
    Q_DISABLE_COPY_MOVE(Connection)

    /// Runs a statement with @p values bound to its placeholders and returns the rows it reads. A
    /// bool is stored as -1 or 0. Numbers are returned as qlonglong or double, texts as QString,
    /// NULL as an invalid QVariant.
    ResultRows run(const QString &sql, const QVariantList &values = {});

    /// Moves the WAL into the file now. Until that happens, here or when the WAL is long or the file
    /// is closed, the file still contains deleted rows.
    void moveWalIntoFile();

    /// Throws FatalError if the file or its WAL was deleted or replaced, unless that was reported
    /// before. To be called before closing.
    void requireOwnFile();

    /// Sets how long the WAL may become, in pages. The next statement that writes first moves a
    /// longer one into the file. Only tests change the default.
    void setMaxWalPages(int pages);

private:
    struct Place;

    Connection(std::unique_ptr<Place> place, Database::Access access);

    bool isInPlace() const;
    void prepareToWrite();

    std::unique_ptr<Place> m_place;
    Database m_database;
    std::unique_ptr<WalKeeper> m_wal; ///< null in a Connection of create()
    bool m_lost = false;              ///< true once requireOwnFile() has thrown FatalError
};
