// SPDX-License-Identifier: MIT
// The open Ledger file: one encrypted database, one connection, statements with bound values.
// Each statement is durable when it returns.
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

/// The marks by which a file is known as a Ledger of this program.
inline constexpr int LedgerApplicationId = 0x4d444c31; // "MDL1"
inline constexpr const char *LedgerPassword = "639417";

/// What a reading statement brought: column names as the statement gives them, and its rows.
struct ResultRows
{
    QStringList columns;
    QList<QVariantList> rows;
};

/// An object that exists is an open, working Ledger. Every member raises RunTimeError
/// DatabaseFailure with the engine's words when the engine fails.
class Connection
{
public:
    /// Opens an existing Ledger for this process alone. Never creates or alters a file: one that
    /// is missing, empty, foreign, damaged, wrongly keyed or not writable is refused.
    static std::unique_ptr<Connection> open(const QString &path,
                                            const QByteArray &password = LedgerPassword);

    /// Makes a new, empty, encrypted database file for the maker of the empty Ledger. Raises
    /// when a file of that name exists.
    static std::unique_ptr<Connection> create(const QString &path,
                                              const QByteArray &password = LedgerPassword);

    ~Connection();

    /// Runs a statement with @p values bound to its question marks; gives what it reads.
    /// Booleans of the tables are -1 and 0. Numbers come back as qlonglong or double, texts as
    /// QString, NULL as an invalid QVariant.
    ResultRows run(const QString &sql, const QVariantList &values = {});

    /// How many rows statements have written or removed since the file was opened. As long as it
    /// stays the same, what was read before still holds.
    int changes() const;

private:
    struct Engine;

    explicit Connection(std::unique_ptr<Engine> engine);

    std::unique_ptr<Engine> m_engine;
};
