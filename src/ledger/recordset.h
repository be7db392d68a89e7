// SPDX-License-Identifier: MIT
// Working slots for statements: a recordset holds the rows that a statement read, or the row
// that is being added to a table.
#pragma once

#include "ledger/connection.h"

#include <memory>

/// One slot. Opening it again drops what it held. All operations raise RunTimeError DatabaseFailure
/// when SQLite fails.
class Recordset
{
public:
    /// Works on what @p connection points to when an operation is called; it may change meanwhile.
    explicit Recordset(const std::unique_ptr<Connection> &connection) : m_connection(&connection) {}

    /// Runs a reading statement; the first of its rows becomes the current one.
    void open(const QString &sql, const QVariantList &values = {});

    /// Starts a new row of @p table, none of whose rows are read.
    void openTable(const QString &table);

    /// Readies the slot for editing the row of @p table whose @p key is @p value: each column that
    /// set() names is changed by update(). Raises DatabaseFailure "no current row" without one.
    void openRow(const QString &table, const QString &key, const QVariant &value);

    /// Number of rows read.
    int recordCount() const { return int(m_read.rows.size()); }

    /// True once no current row is left.
    bool eof() const { return m_current >= recordCount(); }

    void moveNext() { ++m_current; }

    /// Value of a column in the current row; column names go without regard to case. Raises
    /// DatabaseFailure without a current row or such a column.
    QVariant field(const QString &column) const;

    /// Place of a column among those read, and its value in the current row: for long lists.
    qsizetype place(const QString &column) const;
    const QVariant &field(qsizetype place) const;

    /// The rows read, for a list that keeps them. Lets go of everything.
    QList<QVariantList> takeRows();

    /// Sets one column of the row begun or opened for editing.
    void set(const QString &column, const QVariant &value);

    /// Writes the row. It is durable when this returns.
    void update();

    /// Lets go of everything.
    void close() { *this = Recordset(*m_connection); }

private:
    ResultRows run(const QString &sql, const QVariantList &values) const;

    const std::unique_ptr<Connection> *m_connection;
    ResultRows m_read;
    int m_current = 0;
    QString m_table;
    QString m_editKey; ///< column that names the row being edited; empty while one is added
    QVariant m_editValue;
    QStringList m_columns;
    QVariantList m_values;
};
