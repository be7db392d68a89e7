// SPDX-License-Identifier: MIT
// SQLite opens its files without FILE_SHARE_DELETE, so Windows keeps them from being deleted or
// replaced while they are open. The server of a network share may still allow it.
#include "desktop/filesystem.h"

#include <QFileInfo>

#include <optional>

#include <windows.h>

namespace {

/// Returns a FileId of zeros if there is no file, std::nullopt if that cannot be determined.
std::optional<FileId> findFile(const QByteArray &path)
{
    const std::wstring name = QFile::decodeName(path).toStdWString();
    const HANDLE file = CreateFileW(name.c_str(), FILE_READ_ATTRIBUTES,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND)
            return FileId{};
        return std::nullopt;
    }
    BY_HANDLE_FILE_INFORMATION found{};
    const bool known = GetFileInformationByHandle(file, &found) != 0;
    CloseHandle(file);
    if (!known)
        return std::nullopt;
    return FileId{found.dwVolumeSerialNumber,
                  (quint64(found.nFileIndexHigh) << 32) | found.nFileIndexLow};
}

} // namespace

FileId fileIdAt(const QByteArray &path)
{
    return findFile(path).value_or(FileId{});
}

bool leadsTo(const QByteArray &path, const FileId &id)
{
    return findFile(path).value_or(id) == id;
}

bool mayBeWritten(const QByteArray &path)
{
    const QFileInfo file(QFile::decodeName(path));
    return !file.isFile() || file.isWritable();
}

void syncFolder(const QByteArray &) {}
