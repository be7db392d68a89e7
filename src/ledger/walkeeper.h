// SPDX-License-Identifier: MIT
// Recognises the file that a WAL belongs to.
//
// SQLite applies a WAL to any file beside it. A backup restored beside the WAL of a killed program
// would become a mixture of two states. So the file has a random id in PRAGMA user_version, which
// changes with each checkpoint. The first frame of a WAL has the id of the file it was started for.
// Before a checkpoint, the id that the file will have afterwards is appended to the WAL. A file
// with neither id is not the one that the WAL belongs to.
#pragma once

#include "ledger/database.h"

struct WalContents;

/// Returns true if @p wal was written for the file at @p path in its present state, or if that
/// cannot be determined: the WAL has no id, or a power cut has damaged the first page of the file.
/// @p salt is read from the file.
bool belongsTo(const QString &path, const QByteArray &salt, const QByteArray &password,
               const WalContents &wal);

/// Writes the ids of an open file and runs the checkpoints. SQLite's automatic ones would start a
/// WAL without an id.
class WalKeeper
{
public:
    /// @p left is the content of the WAL before the file was opened with @p password.
    WalKeeper(Database &file, const WalContents &left, const QByteArray &password);

    /// To be called before each statement that writes. Moves the WAL into the file and starts a new
    /// one before the first statement, and when the WAL has reached its maximum length.
    void prepareToWrite();

    /// Moves the WAL into the file, which gets a new id, and truncates the WAL.
    void moveIntoFile();

    /// Appends the next id to the WAL. To be called before the file is closed, since SQLite then
    /// moves the WAL into the file.
    void prepareToClose();

    /// Sets the maximum length of the WAL in pages. Only tests change the default.
    void setMaxPages(int pages) { m_maxPages = pages; }

private:
    qint32 id() const;
    void writeId(qint32 id);
    void writeNextId();
    void startOver(Database::WalLength length);

    Database &m_file;
    int m_maxPages = 1000;
    bool m_isEmpty;
    bool m_hasFirstId;          ///< the WAL has the id of the file it was started for
    bool m_hasNextId;           ///< the WAL ends with the id that the file will have
    bool m_isOfSession = false; ///< the WAL was started by this object
};
