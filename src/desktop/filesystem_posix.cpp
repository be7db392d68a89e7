// SPDX-License-Identifier: MIT
#include "desktop/filesystem.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

std::optional<FileId> fileIdAt(const QByteArray &path)
{
    struct stat found = {};
    if (stat(path.constData(), &found) == 0)
        return FileId{quint64(found.st_dev), quint64(found.st_ino)};
    if (errno == ENOENT || errno == ENOTDIR)
        return FileId{};
    return std::nullopt;
}

bool leadsTo(const QByteArray &path, const FileId &id)
{
    return fileIdAt(path).value_or(id) == id;
}

bool mayBeWritten(const QByteArray &path)
{
    return faccessat(AT_FDCWD, path.constData(), W_OK, AT_EACCESS) == 0;
}

bool createPrivate(QFile &file)
{
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly,
                     QFile::ReadOwner | QFile::WriteOwner);
}

void makePrivate(const QByteArray &path)
{
    // By its path: closing a descriptor of the file would drop SQLite's locks.
    struct stat found = {};
    if (stat(path.constData(), &found) == 0 && found.st_uid == geteuid()
        && (found.st_mode & (S_IRWXG | S_IRWXO)) != 0)
        chmod(path.constData(), found.st_mode & (S_IRUSR | S_IWUSR));
}

void syncFolder(const QByteArray &folder)
{
    const int opened = open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened < 0)
        return;
    fsync(opened);
    close(opened);
}
