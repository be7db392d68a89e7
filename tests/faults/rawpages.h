// SPDX-License-Identifier: MIT
// A second reader of the encrypted file, below the engine and without it: keys, authentication and
// cipher of each page, free pages and the journal's pages included.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// All pages that stand in a file.
struct RawPages
{
    QList<int> broken; ///< numbers of those that do not carry the key's signature
    QByteArray plain;  ///< all others decrypted, one behind another
};

/// Reads a Ledger, or a journal beside one, which has no salt of its own.
RawPages readRawPages(const QString &path, const QString &ledger);

/// The Ledger's password after all its turns, in the engine's spelling for a key.
/// Opening with it takes a tenth of the time, which a test that opens thousands has not got.
QByteArray readyKey(const QString &ledger);
