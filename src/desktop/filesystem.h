// SPDX-License-Identifier: MIT
// What Qt does not say of files and folders: whether a path still leads to the same file, and
// whether a folder may be written to.
//
// Paths are those of QFile::encodeName(), since these functions are called for each row of a save.
#pragma once

#include <QByteArray>

/// A file, whatever its name. Two files that exist at the same time never have the same.
struct FileId
{
    quint64 volume = 0;
    quint64 file = 0;

    bool operator==(const FileId &) const = default;
};

/// The file that @p path leads to; all 0 if there is none.
FileId fileIdAt(const QByteArray &path);

/// False if @p path leads to another file than @p id or to none. True also where that cannot be
/// found out, for example on a drive that does not answer: reading and writing will fail there.
bool leadsTo(const QByteArray &path, const FileId &id);

/// What the permissions of a file or folder say. Windows does not say it of folders.
bool mayBeWritten(const QByteArray &path);

/// Makes new and renamed files of a folder survive a power cut. Windows does that by itself.
void syncFolder(const QByteArray &folder);
