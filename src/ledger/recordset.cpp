// SPDX-License-Identifier: MIT
#include "ledger/recordset.h"

#include "ledger/ledger.h"
#include "runtime/runtimeerror.h"

#include <algorithm>

using namespace Qt::StringLiterals;

void Recordset::open(const QString &sql, const QVariantList &values)
{
    close();
    m_read = LedgerConnection->run(sql, values);
}

void Recordset::openTable(const QString &table)
{
    close();
    m_table = table;
}

QVariant Recordset::field(const QString &column) const
{
    const auto found =
        std::find_if(m_read.columns.begin(), m_read.columns.end(), [&](const QString &name) {
            return name.compare(column, Qt::CaseInsensitive) == 0;
        });
    if (found == m_read.columns.end())
        throw RunTimeError(RunTimeError::DatabaseFailure, u"no such column: "_s + column);
    if (eof())
        throw RunTimeError(RunTimeError::DatabaseFailure, u"no current row"_s);
    return m_read.rows.at(m_current).at(found - m_read.columns.begin());
}

void Recordset::addNew()
{
    m_columns.clear();
    m_values.clear();
}

void Recordset::set(const QString &column, const QVariant &value)
{
    m_columns += column;
    m_values += value;
}

void Recordset::update()
{
    const QStringList marks(m_columns.size(), u"?"_s);
    LedgerConnection->run(u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(m_table, m_columns.join(u", "_s),
                                                                   marks.join(u", "_s)),
                          m_values);
}
