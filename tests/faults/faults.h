// SPDX-License-Identifier: MIT
// What a machine can do to a book that is being kept. No row that was acknowledged may ever be
// lost, and none may be torn.
#pragma once

#include <QDir>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

/// A program's folder with an empty Ledger that nobody has opened. All have the same salt, so that
/// a key has to be worked out only once.
struct ProgramFolder
{
    ProgramFolder();
    ~ProgramFolder();
    Q_DISABLE_COPY_MOVE(ProgramFolder)

    QString path() const { return folder.path(); }
    QString data() const { return path() + QStringLiteral("/data"); }
    QString ledger() const { return data() + QStringLiteral("/ztkdata.ZDB"); }
    QString journal() const { return ledger() + QStringLiteral("-wal"); }

    /// The key of all of them, ready to use.
    static QByteArray key();

    /// Opens the Ledger for this process, with that key.
    void open() const;

    /// Bytes of all that lies beside the program, by name.
    QMap<QString, QByteArray> bytes() const;

    QTemporaryDir folder;
};

/// What a Ledger holds that was left by a process, in whatever way it ended, as its next owner reads
/// it. The rows are read from a copy that has the WAL beside it. If the file does not open, or one
/// of its pages is damaged, the list says so instead.
QStringList rowsLeftIn(const QString &ledger);

class FaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void killLosesNoAcknowledgedStep();
    void oneOfManyCopiesLives();

    void powerCutLosesNoAcknowledgedStep();
    void failingCallLeavesWholeStatements_data();
    void failingCallLeavesWholeStatements();
    void folderTurnedReadOnlyEndsInTheReport();

    void damagedLedgerIsRefused_data();
    void damagedLedgerIsRefused();
    void whatIsNoFileIsRefused();
    void spoiltFirstPageComesFromTheJournal();
    void restoredCopyIsWhole();
    void walOfAnotherLedgerIsSetAside();
    void indexThatDisagreesIsRebuilt();
    void damagedJournalLeavesWholeSteps();
    void nothingLeaks();

private:
    /// How many times: a small sample, or what the environment variable @p name says.
    static int times(const char *name, int sample);

    QTemporaryDir m_place; ///< so that a running program is no other copy of a victim
    quint32 m_seed = 0;
};
