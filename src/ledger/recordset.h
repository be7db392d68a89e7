// SPDX-License-Identifier: MIT
// Rows read by a statement, or a row that is being added or edited.
#pragma once

#include "ledger/connection.h"

#include <memory>

/// Opening a recordset again discards its content. All members throw RunTimeError DatabaseFailure
/// if SQLite fails.
class Recordset
{
public:
    /// Refers to the variable @p connection, which may be set later and must be set when a
    /// statement runs.
    explicit Recordset(const std::unique_ptr<Connection> &connection) : m_connection(&connection) {}

    /// Runs a statement that reads. The first row becomes the current one.
    void open(const QString &sql, const QVariantList &values = {});

    /// Starts a new row of @p table. Reads nothing.
    void openTable(const QString &table);

    /// Starts editing the row of @p table whose @p key is @p value: update() changes the columns
    /// that set() names. Throws DatabaseFailure "no current row" if there is no such row.
    void openRow(const QString &table, const QString &key, const QVariant &value);

    /// Returns the number of rows read.
    int recordCount() const { return int(m_read.rows.size()); }

    /// Returns true if there is no current row: after the last one, or if no rows were read.
    bool eof() const { return m_current >= recordCount(); }

    void moveNext() { ++m_current; }

    /// Returns the value of a column in the current row. Column names are case-insensitive. Throws
    /// DatabaseFailure if there is no current row or no such column.
    QVariant field(const QString &column) const;

    /// Returns the index of a column, for field(index). Throws DatabaseFailure if there is no such
    /// column.
    qsizetype columnIndex(const QString &column) const;

    /// As field(column), but faster: for long lists.
    const QVariant &field(qsizetype index) const;

    /// Returns all rows read and closes the recordset.
    QList<QVariantList> takeRows();

    /// Sets a column of the row started by openTable() or openRow().
    void set(const QString &column, const QVariant &value);

    /// Writes the row. It is durable when this returns.
    void update();

    /// Discards all content.
    void close() { *this = Recordset(*m_connection); }

private:
    ResultRows run(const QString &sql, const QVariantList &values) const;

    const std::unique_ptr<Connection> *m_connection;
    ResultRows m_read;
    int m_current = 0;
    QString m_table;
    QString m_editKey; ///< key column of the row being edited; empty for a new row
    QVariant m_editValue;
    QStringList m_columns;
    QVariantList m_values;
};
