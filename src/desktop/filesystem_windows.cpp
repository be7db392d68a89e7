// SPDX-License-Identifier: MIT
// SQLite opens its files without FILE_SHARE_DELETE, so Windows keeps them from being deleted or
// replaced while they are open. On a network share that can still happen.
#include "desktop/filesystem.h"

#include <QFileInfo>
#include <QHash>

#include <utility>

#include <windows.h>

namespace {

/// What can be read of a file without opening it, used to detect that it has changed.
struct Stamp
{
    explicit Stamp(const WIN32_FILE_ATTRIBUTE_DATA &data)
        : size((quint64(data.nFileSizeHigh) << 32) | data.nFileSizeLow),
          created(ticks(data.ftCreationTime)), written(ticks(data.ftLastWriteTime))
    {}

    bool operator==(const Stamp &) const = default;

    static quint64 ticks(const FILETIME &time)
    {
        return (quint64(time.dwHighDateTime) << 32) | time.dwLowDateTime;
    }

    quint64 size;
    quint64 created;
    quint64 written;
};

std::wstring toNative(const QByteArray &path)
{
    return QFile::decodeName(path).toStdWString();
}

/// Returns the result of fileIdAt() after a failed call: zeros if the file does not exist,
/// std::nullopt after any other error.
std::optional<FileId> idAfterError()
{
    const DWORD error = GetLastError();
    if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND)
        return FileId{};
    return std::nullopt;
}

} // namespace

std::optional<FileId> fileIdAt(const QByteArray &path)
{
    const HANDLE file = CreateFileW(toNative(path).c_str(), FILE_READ_ATTRIBUTES,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return idAfterError();
    BY_HANDLE_FILE_INFORMATION found{};
    const bool known = GetFileInformationByHandle(file, &found) != 0;
    CloseHandle(file);
    if (!known)
        return std::nullopt;
    return FileId{found.dwVolumeSerialNumber,
                  (quint64(found.nFileIndexHigh) << 32) | found.nFileIndexLow};
}

/// Remembers the last confirmed id of each path and opens the file only if its size or times have
/// changed: this is called for each row of a save, and opening it each time would be slow. Wine
/// would also run out of file descriptors, since it keeps those of a locked file open until the
/// lock is released.
bool leadsTo(const QByteArray &path, const FileId &id)
{
    static QHash<QByteArray, std::pair<Stamp, FileId>> known;
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(toNative(path).c_str(), GetFileExInfoStandard, &data))
        return idAfterError().value_or(id) == id;
    const std::pair now(Stamp(data), id);
    const auto last = known.constFind(path);
    if (last != known.cend() && *last == now)
        return true;
    if (fileIdAt(path).value_or(id) != id)
        return false;
    known.insert(path, now);
    return true;
}

bool mayBeWritten(const QByteArray &path)
{
    const QFileInfo file(QFile::decodeName(path));
    return !file.isFile() || file.isWritable();
}

bool createPrivate(QFile &file)
{
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly);
}

void makePrivate(const QByteArray &) {}

void syncFolder(const QByteArray &) {}
