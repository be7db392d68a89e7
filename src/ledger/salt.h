// SPDX-License-Identifier: MIT
// The salt of the Ledger's key: the first bytes of the file, which nothing can be read without.
//
// A power cut during a checkpoint can spoil the first page. All other pages come back from the WAL
// by themselves, but SQLCipher takes the salt from the file alone. The WAL's copy of the first page
// begins with it.
#pragma once

#include <QByteArray>

inline constexpr qsizetype SaltSize = 16;

/// The key that @p password makes with @p salt, with the salt behind it, as SQLCipher takes both in
/// place of a password. A password that is a key already, x'...', is taken as that.
QByteArray keyWithSalt(const QByteArray &password, const QByteArray &salt);
