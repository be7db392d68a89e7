// SPDX-License-Identifier: MIT
// A disk that fails on demand. It stands between the engine and the files of one folder, so it
// works on every system and needs no rights and no disk of its own.
#pragma once

#include <QHash>
#include <QRandomGenerator>
#include <QStringList>

#include <array>
#include <functional>

/// What the engine asks of a disk.
enum class Call { Open, Read, Write, Sync, Truncate, Delete };

/// What becomes of a call that is struck, and of those of its kind that follow.
enum class Fault {
    None,
    Once,   ///< it alone fails
    Always, ///< all fail from then on
    Full,   ///< no file grows any more, and half of what does not fit is written
};

/// The engine's disk for as long as it lives; there is one at a time. Files in other folders pass
/// through it untouched.
class FaultyDisk
{
public:
    explicit FaultyDisk(const QString &folder);
    ~FaultyDisk();
    Q_DISABLE_COPY_MOVE(FaultyDisk)

    /// Has the @p nth call of a kind from now on, counted from 1, be struck. For Full only writes
    /// that let a file grow count.
    void strike(Fault fault, Call call, int nth);
    bool struck() const { return m_struck; }

    /// Is called ahead of each sync, with all that was written since the last still in the air.
    std::function<void()> aheadOfSync;

    /// Puts into the empty folder @p into what a power cut would leave now: all that was synced,
    /// and of the rest what the dice let get there, whole, torn, as noise or not at all.
    void cutPower(QRandomGenerator &dice, const QString &into) const;

    /// Every file that the engine ever opened, "" for one of no name.
    const QStringList &opened() const { return m_opened; }

    // For the engine's calls: each says what it is about to do, and is told whether it may.

    bool fails(Call call, bool grows = false);
    void note(const QString &path, Call call, qint64 offset = 0, const QByteArray &bytes = {});
    bool watches(const QString &path) const { return path.startsWith(m_folder); }
    Fault fault() const { return m_fault; }

private:
    struct Change
    {
        Call call;
        qint64 offset;
        QByteArray bytes;
    };

    /// One file: what is on the disk for certain, and what happened to it since.
    struct State
    {
        bool exists = false;
        QByteArray bytes;
        QList<Change> inTheAir;

        void take(const Change &change);
    };

    static State afterPowerCut(const State &file, QRandomGenerator &dice);

    QString m_folder;
    QHash<QString, State> m_files;
    QStringList m_opened;
    Fault m_fault = Fault::None;
    Call m_struckCall = Call::Open;
    int m_callsLeft = 0;
    bool m_struck = false;
};
