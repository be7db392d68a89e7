// SPDX-License-Identifier: MIT
// The salt of the Ledger's key: the first bytes of the file, which nothing can be read without.
//
// A power cut while the journal is being moved into the file can spoil the first page. All other
// pages come back from the journal by themselves, but the engine takes the salt from the file
// alone. The journal's copy of the first page begins with it.
#pragma once

#include <QByteArray>
#include <QString>

/// The salt as the journal at @p path has it in a page of a complete statement; empty if there is
/// no such page, or no journal.
QByteArray saltFromJournal(const QString &path);

/// The key that @p password makes with @p salt, with the salt behind it, as the engine takes both
/// in place of a password. A password that is a key already, x'...', is taken as that.
QByteArray keyWithSalt(const QByteArray &password, const QByteArray &salt);
