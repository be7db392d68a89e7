// SPDX-License-Identifier: MIT
// What a WAL file holds, read without SQLite: SQLite would take the WAL for that of the file
// beside it, and that is still to be found out.
#pragma once

#include <QByteArray>
#include <QString>

/// The complete statements of a WAL.
struct WalContents
{
    bool holdsPages = false;

    /// The file's first page, still encrypted, as the WAL has it first and last; empty where the
    /// WAL does not have it.
    QByteArray firstImage;
    QByteArray lastImage;
};

/// Reads the WAL at @p path; no pages if there is none or it is damaged from the start.
WalContents readWal(const QString &path);
