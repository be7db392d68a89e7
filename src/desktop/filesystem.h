// SPDX-License-Identifier: MIT
// File system calls that Qt does not offer: whether a path still leads to the same file,
// permissions, and syncing a folder.
//
// Paths are encoded by QFile::encodeName(). The caller does that once, since these functions are
// called for each row of a save.
#pragma once

#include <QByteArray>
#include <QFile>

#include <optional>

/// Identifies a file independently of its name. No two existing files have the same id.
struct FileId
{
    quint64 volume = 0;
    quint64 file = 0;

    bool operator==(const FileId &) const = default;
};

/// Returns the id of the file at @p path, one of zeros if there is no file, or std::nullopt if that
/// cannot be determined, for example on a drive that does not answer.
std::optional<FileId> fileIdAt(const QByteArray &path);

/// Returns false if the file at @p path is missing or is not @p id. Returns true if that cannot be
/// determined: reading and writing fail there anyway. Under Windows the id is read again only after
/// the size or the times of the file have changed.
bool leadsTo(const QByteArray &path, const FileId &id);

/// Checks the write permission of a file or folder. Under Windows folders always count as
/// writable.
bool mayBeWritten(const QByteArray &path);

/// Creates an empty file that only its owner can read and write, and opens it for writing. Returns
/// false if the file exists or cannot be created. Under Windows it gets the permissions of its folder.
bool createPrivate(QFile &file);

/// Takes the permissions on a file away from other users if this user owns it. Does nothing on file
/// systems without permissions, and under Windows, where a file has those of its folder.
void makePrivate(const QByteArray &path);

/// Makes new and renamed files in a folder survive a power cut. Does nothing under Windows, which
/// needs no call for that.
void syncFolder(const QByteArray &folder);
