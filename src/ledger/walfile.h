// SPDX-License-Identifier: MIT
// Reads a WAL without SQLite, which would apply it to the file beside it. Whether it belongs to
// that file has to be known first.
#pragma once

#include <QByteArray>
#include <QString>

/// The committed content of a WAL.
struct WalContents
{
    bool hasPages = false;

    /// The first and the last copy of page 1 in the WAL, still encrypted; empty if it has none.
    QByteArray firstImage;
    QByteArray lastImage;
};

/// Reads the WAL at @p path. Returns no pages if there is no WAL or no complete statement in it.
WalContents readWal(const QString &path);
