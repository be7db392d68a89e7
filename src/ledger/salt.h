// SPDX-License-Identifier: MIT
// The salt from which the encryption key is derived: the first 16 bytes of the file.
//
// A power cut during a checkpoint can damage the first page. SQLite restores all pages from the
// WAL, but SQLCipher reads the salt only from the file, and can decrypt nothing with a wrong one.
// The salt is then taken from the copy of the first page in the WAL, which begins with it.
#pragma once

#include <QByteArray>

inline constexpr qsizetype SaltSize = 16;

/// Returns the key derived from @p password and @p salt, followed by the salt, in the form x'...'
/// that SQLCipher accepts instead of a password. A password of the form x'...' is used as the key
/// itself.
QByteArray keyWithSalt(const QByteArray &password, const QByteArray &salt);
