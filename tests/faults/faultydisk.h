// SPDX-License-Identifier: MIT
// A disk that fails on demand: a VFS between SQLite and the files of one Ledger.
#pragma once

#include <QDir>
#include <QFile>
#include <QRandomGenerator>

#include <functional>
#include <map>

#include <sqlite3.h>

inline QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// SQLite's disk as long as it exists; there is one at a time.
struct FaultyDisk
{
    enum Fault { Once, Always, Full };

    /// The @p nth call fails, and unless @p kind is Once, all calls after it. Of a disk that is
    /// full, only writes fail that make a file longer.
    explicit FaultyDisk(const QString &path, Fault kind = Once, int nth = 0)
        : ledger(path), fault(kind), callsLeft(nth), synced{{path, bytesOf(path)}}
    {
        disk = this;
        vfs.zName = "faulty";
        vfs.xOpen = openFile;
        sqlite3_vfs_register(&vfs, 1);
    }
    ~FaultyDisk()
    {
        sqlite3_vfs_unregister(&vfs);
        sqlite3_vfs_register(systemVfs, 1);
    }
    Q_DISABLE_COPY_MOVE(FaultyDisk)

    /// Returns what a power cut leaves of a file: of the bytes that were written since the last
    /// sync some blocks old, some new and some noise.
    QByteArray afterPowerCut(const QString &path, QRandomGenerator &random)
    {
        QByteArray left = synced[path];
        QByteArray other = bytesOf(path);
        if (random.bounded(2) == 1)
            left.swap(other);
        const qsizetype block = 1 << random.bounded(5, 13);
        const int fates = random.bounded(1, 4); // with only one, all is old or all is new
        for (qsizetype at = 0, fate = 0; at < left.size(); ++at) {
            if (at % block == 0)
                fate = random.bounded(fates);
            const char changed = at < other.size() ? other[at] : '\0';
            if (fate > 0 && left[at] != changed)
                left[at] = fate == 1 ? changed : char(random.generate());
        }
        return left;
    }

    /// Counts a call and returns @p failure if it has to fail.
    int resultOf(int failure)
    {
        if ((fault == Full) != (failure == SQLITE_FULL))
            return SQLITE_OK;
        --callsLeft;
        return callsLeft == 0 || (callsLeft < 0 && fault != Once) ? failure : SQLITE_OK;
    }

    static int openFile(sqlite3_vfs *, const char *name, sqlite3_file *file, int flags, int *used)
    {
        const QString path = QDir::fromNativeSeparators(QString::fromUtf8(name));
        if (path.isEmpty())
            qFatal("SQLite opens a temporary file, which could show the rows of the book");
        const bool isOurs = path.startsWith(disk->ledger);
        int code = isOurs ? disk->resultOf(SQLITE_CANTOPEN) : SQLITE_OK;
        if (code == SQLITE_OK)
            code = systemVfs->xOpen(systemVfs, name, file, flags, used);
        if (code != SQLITE_OK || !isOurs)
            return code;
        OpenFile &open = openFiles[file] = {path, file->pMethods, *file->pMethods};
        file->pMethods = &open.faulty;
        open.faulty.xRead = [](sqlite3_file *own, void *to, int size, sqlite3_int64 at) {
            const int failure = disk->resultOf(SQLITE_IOERR_READ);
            return failure ? failure : openFiles[own].real->xRead(own, to, size, at);
        };
        open.faulty.xWrite = writeFile;
        open.faulty.xTruncate = [](sqlite3_file *own, sqlite3_int64 size) {
            const int failure = disk->resultOf(SQLITE_IOERR_TRUNCATE);
            return failure ? failure : openFiles[own].real->xTruncate(own, size);
        };
        open.faulty.xSync = [](sqlite3_file *own, int how) {
            disk->beforeSync();
            const int failure = disk->resultOf(SQLITE_IOERR_FSYNC);
            if (failure == SQLITE_OK)
                disk->synced[openFiles[own].path] = bytesOf(openFiles[own].path);
            return failure ? failure : openFiles[own].real->xSync(own, how);
        };
        return SQLITE_OK;
    }

    /// Half of a write that fails is written.
    static int writeFile(sqlite3_file *file, const void *from, int size, sqlite3_int64 at)
    {
        const sqlite3_io_methods *real = openFiles[file].real;
        sqlite3_int64 length = 0;
        real->xFileSize(file, &length);
        const int failure = disk->resultOf(
            disk->fault == Full && at + size > length ? SQLITE_FULL : SQLITE_IOERR_WRITE);
        const int code = real->xWrite(file, from, failure ? size / 2 : size, at);
        return failure ? failure : code;
    }

    /// SQLite's own methods and those in their place.
    struct OpenFile
    {
        QString path;
        const sqlite3_io_methods *real;
        sqlite3_io_methods faulty;
    };

    inline static FaultyDisk *disk = nullptr;
    inline static sqlite3_vfs *systemVfs = sqlite3_vfs_find(nullptr);
    inline static sqlite3_vfs vfs = *systemVfs;
    inline static std::map<sqlite3_file *, OpenFile> openFiles; ///< and some that were closed

    QString ledger;
    Fault fault;
    int callsLeft;                        ///< 0 or less once a call has failed
    std::map<QString, QByteArray> synced; ///< by path
    std::function<void()> beforeSync = [] {};
};
