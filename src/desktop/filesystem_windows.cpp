// SPDX-License-Identifier: MIT
// SQLite opens its files without FILE_SHARE_DELETE, so Windows keeps them from being deleted or
// replaced while they are open. The server of a network share may still allow it.
#include "desktop/filesystem.h"

#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>

#include <array>

#include <windows.h>

namespace {

std::wstring wide(const QString &text)
{
    return QDir::toNativeSeparators(text).toStdWString();
}

/// Returns the index of the file @p name in an open folder, 0 if it has no such file, std::nullopt
/// if that cannot be determined.
std::optional<quint64> indexInFolder(HANDLE folder, const QString &name)
{
    alignas(FILE_ID_BOTH_DIR_INFO) std::array<char, 16384> entries;
    while (GetFileInformationByHandleEx(folder, FileIdBothDirectoryInfo, entries.data(),
                                        DWORD(entries.size()))) {
        const char *at = entries.data();
        for (DWORD step = 1; step != 0;) {
            const auto *entry = reinterpret_cast<const FILE_ID_BOTH_DIR_INFO *>(at);
            const auto length = qsizetype(entry->FileNameLength / sizeof(wchar_t));
            if (name.compare(QStringView(entry->FileName, length), Qt::CaseInsensitive) == 0)
                return quint64(entry->FileId.QuadPart);
            step = entry->NextEntryOffset;
            at += step;
        }
    }
    return GetLastError() == ERROR_NO_MORE_FILES ? std::optional<quint64>(0) : std::nullopt;
}

} // namespace

/// Reads the id from the folder. Wine keeps each handle of a locked file open until the lock is
/// released, so opening the Ledger for every row would use up its file descriptors.
std::optional<FileId> fileIdAt(const QByteArray &path)
{
    const QFileInfo file(QFile::decodeName(path));
    const HANDLE folder =
        CreateFileW(wide(file.path()).c_str(), FILE_LIST_DIRECTORY | FILE_READ_ATTRIBUTES,
                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                    FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (folder == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND)
            return FileId{};
        return std::nullopt;
    }
    const auto closer = qScopeGuard([folder] { CloseHandle(folder); });
    BY_HANDLE_FILE_INFORMATION about{};
    if (!GetFileInformationByHandle(folder, &about))
        return std::nullopt;
    const std::optional<quint64> index = indexInFolder(folder, file.fileName());
    if (!index)
        return std::nullopt;
    return *index ? FileId{about.dwVolumeSerialNumber, *index} : FileId{};
}

bool mayBeWritten(const QByteArray &path)
{
    const QFileInfo file(QFile::decodeName(path));
    return !file.isFile() || file.isWritable();
}

void syncFolder(const QByteArray &) {}
