// SPDX-License-Identifier: MIT
// Keeps data that the program can no longer use but must not lose, in files whose names contain the
// date and the reason.
#pragma once

#include <QString>

class Database;

/// Renames the WAL at @p path, which belongs to another file. Throws RunTimeError if that fails.
void renameForeignWal(const QString &path);

/// Copies the data of @p file, which is open but no longer at @p path, to a new Ledger with the
/// given @p password. The new file is beside @p path, or if that fails in the folder above, or in the
/// home folder. Returns its path, or throws RunTimeError if all three fail.
QString rescue(const Database &file, const QString &path, const QByteArray &password);
