// SPDX-License-Identifier: MIT
#include "ledger/recordset.h"

#include "runtime/runtimeerror.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void raiseNoCurrentRow()
{
    throw RunTimeError(RunTimeError::DatabaseFailure, u"no current row"_s);
}

} // namespace

ResultRows Recordset::run(const QString &sql, const QVariantList &values) const
{
    return (*m_connection)->run(sql, values);
}

void Recordset::open(const QString &sql, const QVariantList &values)
{
    close();
    m_read = run(sql, values);
}

void Recordset::openTable(const QString &table)
{
    close();
    m_table = table;
}

void Recordset::openRow(const QString &table, const QString &key, const QVariant &value)
{
    open(u"SELECT %1 FROM %2 WHERE %1 = ?"_s.arg(key, table), {value});
    if (eof())
        raiseNoCurrentRow();
    m_table = table;
    m_editKey = key;
    m_editValue = value;
}

qsizetype Recordset::columnIndex(const QString &column) const
{
    const auto found =
        std::find_if(m_read.columns.begin(), m_read.columns.end(), [&](const QString &name) {
            return name.compare(column, Qt::CaseInsensitive) == 0;
        });
    if (found == m_read.columns.end())
        throw RunTimeError(RunTimeError::DatabaseFailure, u"no such column: "_s + column);
    return found - m_read.columns.begin();
}

const QVariant &Recordset::field(qsizetype index) const
{
    if (eof())
        raiseNoCurrentRow();
    return m_read.rows.at(m_current).at(index);
}

QVariant Recordset::field(const QString &column) const
{
    return field(columnIndex(column));
}

QList<QVariantList> Recordset::takeRows()
{
    QList<QVariantList> rows = std::move(m_read.rows);
    close();
    return rows;
}

void Recordset::set(const QString &column, const QVariant &value)
{
    m_columns += column;
    m_values += value;
}

void Recordset::update()
{
    if (!m_editKey.isEmpty()) {
        run(u"UPDATE %1 SET %2 = ? WHERE %3 = ?"_s.arg(m_table, m_columns.join(u" = ?, "_s),
                                                       m_editKey),
            m_values + QVariantList{m_editValue});
        return;
    }
    const QStringList marks(m_columns.size(), u"?"_s);
    run(u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(m_table, m_columns.join(u", "_s),
                                                 marks.join(u", "_s)),
        m_values);
}
