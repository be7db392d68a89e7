// SPDX-License-Identifier: MIT
// A Ledger of a test's own, in a temporary folder: the real, encrypted file, opened as the
// program opens it.
#pragma once

#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>

/// Open as LedgerConnection for as long as it lives; then closed and removed.
class TestLedger
{
public:
    TestLedger();
    ~TestLedger();
    Q_DISABLE_COPY_MOVE(TestLedger)

    QString path() const;

    /// Names of all that lies in the Ledger's folder.
    QStringList files() const;

    /// Runs a statement; gives the rows that it reads, their fields joined by blanks.
    QStringList run(const QString &sql, const QVariantList &values = {}) const;

    void addMember(int key, const QString &name, const QString &percent) const;

private:
    QTemporaryDir m_folder;
};

/// Copies the look and the words of the program in folder @p from to the program folder @p to.
void copyProgramData(const QString &from, const QString &to);

/// Runs commands on a database file with the engine's stock tool, a reader that shares no code
/// with the program. An empty password means a plain file. Gives what it printed, errors included.
QString runStockTool(const QString &path, const QString &password, const QString &commands);
