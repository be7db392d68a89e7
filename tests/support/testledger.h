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

    /// Runs a statement and returns the rows that it reads, with their fields joined by blanks.
    QStringList run(const QString &sql, const QVariantList &values = {}) const;

private:
    QTemporaryDir m_folder;
};

/// Copies the style sheet and the sounds of the program folder @p from to the program folder @p to.
void copyProgramData(const QString &from, const QString &to);

/// Runs statements on a Ledger with SQLCipher's shell, which shares no code with the program.
void runStockTool(const QString &path, const QString &statements);
