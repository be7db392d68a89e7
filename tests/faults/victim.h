// SPDX-License-Identifier: MIT
// The process that is killed: the test program, started once more by itself. It tells through a
// pipe each step that became durable, before it begins the next.
#pragma once

#include <QProcess>

/// A running victim, seen by the test. It is killed with its object.
class Victim
{
public:
    /// With a seed it opens the Ledger in @p folder and does the steps of that day until it is
    /// killed; one seed in 16 has it close and open the Ledger behind each. Without, it waits at
    /// the gate, then starts the whole program, acknowledges that, and stays. It runs when this
    /// returns.
    explicit Victim(const QString &folder, quint32 seed = 0);
    ~Victim() { kill(); }
    Q_DISABLE_COPY_MOVE(Victim)

    void openGate() { m_process.closeWriteChannel(); }
    bool waitForStep(); ///< false if it ends before
    int waitForEnd();   ///< its own end; exit status
    void kill();

    /// Once it is gone: how many steps it acknowledged, and what its boxes said.
    qsizetype acknowledged() { return m_process.readAllStandardOutput().size(); }
    QString boxes() { return QString::fromUtf8(m_process.readAllStandardError()); }

private:
    QProcess m_process;
};

/// The whole life of a victim; for main() when the program was started as one.
int liveAsVictim(int argc, char **argv);
