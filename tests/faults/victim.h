// SPDX-License-Identifier: MIT
// The process that faults strike: the test program, started once more by itself. It files random
// tickets and tells through a pipe each row that became durable, before it begins the next.
#pragma once

#include "entry/ticket.h"
#include "faults/faultydisk.h"
#include "platform/progressbar.h"

#include <QProcess>
#include <QRandomGenerator>

#include <functional>

/// A ticket over all eight grids, with a customer who may be new and a discount that may be "".
struct RandomTicket
{
    explicit RandomTicket(QRandomGenerator &random);

    /// Files it; @p filed is called behind each row, before the next is begun.
    void save(const std::function<void()> &filed) const;

    Ticket ticket;
    QString customer;
    QString discount;
};

/// A running victim, seen by the test. It is killed with its object.
class Victim
{
public:
    /// With a seed it saves random tickets until it is killed or fails; one seed in 16 has it
    /// close and open the Ledger behind each. @p fault strikes in the middle of a save, behind row
    /// @p afterRow. With no seed it starts the whole program, files one ticket, acknowledges that
    /// and waits.
    explicit Victim(const QString &folder, quint32 seed = 0, Fault fault = Fault::None,
                    int afterRow = 0);
    ~Victim() { kill(); }
    Q_DISABLE_COPY_MOVE(Victim)

    bool waitForRow() { return m_process.waitForReadyRead(20'000); } ///< false if it ends before
    int waitForEnd();                                                ///< its own end; exit status
    void kill();

    /// Once it is gone: how many rows it acknowledged, and what its boxes said.
    qsizetype acknowledged() { return m_process.readAllStandardOutput().size(); }
    QString boxes() { return QString::fromUtf8(m_process.readAllStandardError()); }

private:
    QProcess m_process;
};

/// The whole life of a victim; for main() when the program was started as one.
int liveAsVictim(int argc, char **argv);
