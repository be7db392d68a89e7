// SPDX-License-Identifier: MIT
// Wrapper of SQLite: an encrypted file and its prepared statements. Connection decides which files
// are opened.
#pragma once

#include <QHash>
#include <QStringList>
#include <QVariant>

#include <optional>

struct sqlite3;
struct sqlite3_stmt;

/// The result of a statement: its column names as SQLite returns them, and its rows.
struct ResultRows
{
    QStringList columns;
    QList<QVariantList> rows;
};

/// Why the program refuses a file, also one that SQLite itself may accept.
enum class Refusal { CannotOpen, ReadOnly, NotALedger, Damaged, InUse };

/// Returns SQLite's message.
QString messageOf(Refusal reason);

/// Throws RunTimeError DatabaseFailure with a message, or with SQLite's message for a Refusal.
[[noreturn]] void raiseDatabaseFailure(const QString &message);
[[noreturn]] void raiseDatabaseFailure(Refusal reason);

/// All members throw RunTimeError DatabaseFailure with SQLite's error message if SQLite fails,
/// except where they say otherwise.
class Database
{
public:
    enum class Access {
        Write,
        Immutable, ///< read-only, without the WAL and without a lock
    };

    /// Opens the file. A wrong password or a file that is no database shows only at the first
    /// statement that reads.
    Database(const QString &path, Access access);
    ~Database();
    Q_DISABLE_COPY_MOVE(Database)

    /// Locks the file against other processes until this object is destroyed. Bypasses SQLite's own
    /// locking, so no statement may run on this object.
    void lock() const;

    /// Returns the first bytes of the file, not decrypted, or an empty array if they cannot be
    /// read.
    QByteArray firstBytes(qsizetype count) const;

    /// Sets the password, or the key in the form of keyWithSalt(). To be called before all
    /// statements. A wrong one makes the first statement that reads the file throw.
    void setKey(const QByteArray &key) const;

    /// Adds the collations and sets up exclusive use of the file, with statements that are durable
    /// when they return and deleted rows that are overwritten.
    void configure();

    /// Runs a statement with @p values bound to its placeholders and returns the rows it reads. Throws
    /// if there is not one value for each placeholder. The prepared statement is kept for the next
    /// call, the values are not.
    ResultRows run(const QString &sql, const QVariantList &values = {});

    /// Returns true if a statement does not write to the file.
    bool onlyReads(const QString &sql);

    /// Runs statements without values and without a result.
    void execute(const QByteArray &sql) const;

    /// Returns PRAGMA user_version of a file opened as Immutable, which need not have more than its
    /// first page; std::nullopt if that page cannot be decrypted.
    std::optional<qint32> firstPageVersion() const;

    enum class WalLength { Keep, Truncate };

    /// Moves the WAL into the file. The next statement writes to the beginning of the WAL, which is
    /// faster if the WAL keeps its length.
    void checkpoint(WalLength length) const;

    /// Returns the number of pages in the WAL after the last statement that wrote.
    int walPages() const { return m_walPages; }

    /// Copies all data to the empty file @p target.
    void copyTo(Database &target) const;

    /// Returns true if SQLite could open the file only for reading.
    bool isReadOnly() const;

    /// Keeps the file and its WAL open until the process ends; this object cannot be used any more.
    /// Closing would move the WAL into the file and delete the file at the WAL's path.
    void leaveOpen();

private:
    sqlite3_stmt *prepare(const QString &sql);
    void finalizeAll();
    void check(int code) const;

    sqlite3 *m_handle = nullptr;
    QHash<QString, sqlite3_stmt *> m_prepared;
    int m_walPages = 0;
};
