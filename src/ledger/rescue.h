// SPDX-License-Identifier: MIT
// What becomes of files that the program must neither use nor lose. They stay beside the Ledger,
// under names that say what they are, with the date.
#pragma once

#include <QFile>

class Database;

/// Renames the WAL at @p path, which is of another file. Raises RunTimeError if that fails.
void setAside(const QString &path);

/// Writes all that @p file holds, whose path is lost, to a new Ledger beside @p path with the same
/// @p password and @p permissions, or to a folder near by if it cannot be written there. Gives the
/// new file's path; raises RunTimeError if there is no place to write to.
QString rescue(const Database &file, const QString &path, const QByteArray &password,
               QFile::Permissions permissions);
