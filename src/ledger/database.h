// SPDX-License-Identifier: MIT
// An encrypted SQLite file and its prepared statements. What makes a file a Ledger, and when one is
// refused, is the Connection's business.
#pragma once

#include <QHash>
#include <QStringList>
#include <QVariant>

#include <optional>

struct sqlite3;
struct sqlite3_stmt;

/// What a reading statement brought: column names as the statement gives them, and its rows.
struct ResultRows
{
    QStringList columns;
    QList<QVariantList> rows;
};

/// Reasons for which the program itself refuses a file, in SQLite's words.
enum class Refusal { CannotOpen, ReadOnly, NotALedger, Damaged };

[[noreturn]] void raiseDatabaseFailure(const QString &words);
[[noreturn]] void raiseDatabaseFailure(Refusal reason);

/// Every member raises RunTimeError DatabaseFailure with SQLite's words when SQLite fails.
class Database
{
public:
    enum class Access {
        Write,
        Create,
        ReadAlone, ///< the file as it is, without its WAL; takes no lock
    };

    /// Opens the file, without reading anything.
    Database(const QString &path, Access access);
    ~Database();
    Q_DISABLE_COPY_MOVE(Database)

    /// Keeps other processes off the file. For a Database that is never given a key.
    void lock() const;

    /// What the file begins with, as it is encrypted; empty if it cannot be read.
    QByteArray firstBytes(qsizetype count) const;

    void setKey(const QByteArray &key) const;

    /// Has this process use the file alone, each statement durable when it returns.
    void configure();

    /// Runs a statement with @p values bound to its question marks; gives what it reads.
    ResultRows run(const QString &sql, const QVariantList &values = {});
    bool onlyReads(const QString &sql);
    void execute(const QByteArray &sql) const;

    /// PRAGMA user_version of a file read alone, of which only the first page need be there;
    /// nothing if that cannot be decrypted.
    std::optional<qint32> firstPageVersion() const;

    /// Moves the WAL into the file. Writing goes on at its beginning, which is faster while the WAL
    /// keeps its length.
    enum class WalLength { Keep, Truncate };
    void checkpoint(WalLength length) const;

    /// Pages in the WAL as of the last statement.
    int walPages() const { return m_walPages; }

    /// Writes all that this file holds to the empty file @p target.
    void copyTo(Database &target) const;

    bool isReadOnly() const;

    /// Has the file stay open, WAL and all, to the end of the process. Closing would move the WAL
    /// into the file and delete what lies at the WAL's path.
    void leaveOpen();

private:
    sqlite3_stmt *prepare(const QString &sql);
    void finalizeAll();
    void check(int code) const;

    sqlite3 *m_handle = nullptr;
    QHash<QString, sqlite3_stmt *> m_prepared;
    int m_walPages = 0;
};
