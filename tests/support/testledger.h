// SPDX-License-Identifier: MIT
// A Ledger in a temporary program folder: the real, encrypted file, opened as by the program.
#pragma once

#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>

/// Open as LedgerConnection until it is destroyed, which also deletes the folder.
class TestLedger
{
public:
    TestLedger();
    ~TestLedger();
    Q_DISABLE_COPY_MOVE(TestLedger)

    QString path() const { return m_folder.filePath(QStringLiteral("data/ztkdata.ZDB")); }

    /// Returns the names of the files in the folder of the Ledger.
    QStringList files() const;

    /// Runs a statement and returns the rows that it reads, with their fields joined by blanks.
    QStringList run(const QString &sql, const QVariantList &values = {}) const;

    void addMember(int key, const QString &name, const QString &percent) const;

private:
    QTemporaryDir m_folder;
};

/// Copies the style sheet and the sounds of the program folder @p from to the program folder @p to.
void copyProgramData(const QString &from, const QString &to);

/// Runs commands on a database file with SQLCipher's shell, which shares no code with the program.
/// Without a password the file is a plain one. Returns what it prints, errors included.
QString runStockTool(const QString &path, const QString &password, const QString &commands);
