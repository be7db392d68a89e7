// SPDX-License-Identifier: MIT
// Which WAL belongs to which state of the file.
//
// SQLite applies a WAL to whatever file lies beside it. A backup copy that was put beside the WAL
// of a killed program would become a mixture of two states. So every state of the file that a WAL
// starts from has a random id, in PRAGMA user_version. The WAL has that id in its first frame, and
// in its last one the id that the file gets when the WAL is moved into it. A file that has neither
// of the two is not the one that the WAL was written for.
#pragma once

#include "ledger/database.h"

struct WalContents;

/// True if @p wal was written for the file at @p path as it now is. A file whose first page a power
/// cut spoilt counts as its file.
bool belongsTo(const QString &path, const QByteArray &salt, const QByteArray &password,
               const WalContents &wal);

/// Writes the ids of an open file, and takes the place of SQLite's own checkpoints.
class WalKeeper
{
public:
    /// @p left is what the WAL held when the file was opened, @p password what it was opened with.
    WalKeeper(Database &file, const WalContents &left, const QByteArray &password);

    /// To be called before each statement that writes. Starts a new WAL before the first one, and
    /// when the WAL has grown long.
    void prepareToWrite();

    /// Moves the WAL into the file, which gets a new id, and empties it.
    void moveIntoFile();

    /// To be called before the file is closed, which moves the WAL into it.
    void prepareToClose();

    /// How many pages a WAL may have. Only tests set another number than the default.
    void setMostPages(int pages) { m_mostPages = pages; }

private:
    qint32 id() const;
    void writeId(qint32 id);
    void writeNextId();
    void startOver(Database::WalLength length);

    Database &m_file;
    int m_mostPages = 1000;
    bool m_isEmpty;
    bool m_hasFirstId;          ///< its first page is that of the file it starts from
    bool m_hasNextId;           ///< its last id is that of the file it will be moved into
    bool m_isOfSession = false; ///< started by this process
};
