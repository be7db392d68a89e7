// SPDX-License-Identifier: MIT
// A file system of the engine's kind ("VFS") that hands everything on to the one it replaces.
#include "faults/faultydisk.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>

#include <algorithm>
#include <utility>

#include <sqlite3.h>

namespace {

FaultyDisk *disk = nullptr;
sqlite3_vfs *system_ = nullptr; ///< the engine's own

/// The engine allocates one for each file, with room for the system's own behind it.
struct File
{
    sqlite3_file base;
    QString *path; ///< null for a file that is not watched

    sqlite3_file *real() { return reinterpret_cast<sqlite3_file *>(this + 1); }
};

File *fileOf(sqlite3_file *file)
{
    return reinterpret_cast<File *>(file);
}

QString pathOf(const char *name)
{
    return QDir::fromNativeSeparators(QString::fromUtf8(name));
}

bool fails(File *file, Call call, bool grows = false)
{
    return file->path && disk->fails(call, grows);
}

template<auto call, typename... Values>
int handOn(sqlite3_file *file, Values... values)
{
    sqlite3_file *real = fileOf(file)->real();
    return (real->pMethods->*call)(real, values...);
}

int closeFile(sqlite3_file *file)
{
    delete std::exchange(fileOf(file)->path, nullptr);
    return handOn<&sqlite3_io_methods::xClose>(file);
}

int readFile(sqlite3_file *file, void *to, int size, sqlite3_int64 offset)
{
    if (fails(fileOf(file), Call::Read))
        return SQLITE_IOERR_READ;
    return handOn<&sqlite3_io_methods::xRead>(file, to, size, offset);
}

int writeFile(sqlite3_file *file, const void *from, int size, sqlite3_int64 offset)
{
    const auto write = [&](int count) {
        const int code = handOn<&sqlite3_io_methods::xWrite>(file, from, count, offset);
        if (fileOf(file)->path)
            disk->note(*fileOf(file)->path, Call::Write, offset,
                       QByteArray(static_cast<const char *>(from), count));
        return code;
    };
    sqlite3_int64 length = 0;
    handOn<&sqlite3_io_methods::xFileSize>(file, &length);
    if (!fails(fileOf(file), Call::Write, offset + size > length))
        return write(size);
    write(size / 2);
    return disk->fault() == Fault::Full ? SQLITE_FULL : SQLITE_IOERR_WRITE;
}

int truncateFile(sqlite3_file *file, sqlite3_int64 size)
{
    if (fails(fileOf(file), Call::Truncate))
        return SQLITE_IOERR_TRUNCATE;
    if (fileOf(file)->path)
        disk->note(*fileOf(file)->path, Call::Truncate, size);
    return handOn<&sqlite3_io_methods::xTruncate>(file, size);
}

int syncFile(sqlite3_file *file, int flags)
{
    File *own = fileOf(file);
    if (own->path && disk->aheadOfSync)
        disk->aheadOfSync();
    if (fails(own, Call::Sync))
        return SQLITE_IOERR_FSYNC;
    if (own->path)
        disk->note(*own->path, Call::Sync);
    return handOn<&sqlite3_io_methods::xSync>(file, flags);
}

/// Without the calls for shared memory: the lock of the Ledger is exclusive.
constexpr sqlite3_io_methods Methods{
    .iVersion = 1,
    .xClose = closeFile,
    .xRead = readFile,
    .xWrite = writeFile,
    .xTruncate = truncateFile,
    .xSync = syncFile,
    .xFileSize = handOn<&sqlite3_io_methods::xFileSize, sqlite3_int64 *>,
    .xLock = handOn<&sqlite3_io_methods::xLock, int>,
    .xUnlock = handOn<&sqlite3_io_methods::xUnlock, int>,
    .xCheckReservedLock = handOn<&sqlite3_io_methods::xCheckReservedLock, int *>,
    .xFileControl = handOn<&sqlite3_io_methods::xFileControl, int, void *>,
    .xSectorSize = handOn<&sqlite3_io_methods::xSectorSize>,
    .xDeviceCharacteristics = handOn<&sqlite3_io_methods::xDeviceCharacteristics>,
    .xShmMap = nullptr,
    .xShmLock = nullptr,
    .xShmBarrier = nullptr,
    .xShmUnmap = nullptr,
    .xFetch = nullptr,
    .xUnfetch = nullptr,
};

int openFile(sqlite3_vfs *, const char *name, sqlite3_file *file, int flags, int *flagsOut)
{
    File *own = fileOf(file);
    *own = {};
    const QString path = pathOf(name);
    const bool watched = !name || disk->watches(path);
    if (watched && disk->fails(Call::Open))
        return SQLITE_CANTOPEN;
    const bool fresh = name && !QFile::exists(path);
    const int code = system_->xOpen(system_, name, own->real(), flags, flagsOut);
    if (code != SQLITE_OK)
        return code;
    own->base.pMethods = &Methods;
    if (watched)
        own->path = new QString(path);
    if (watched && (fresh || !name))
        disk->note(path, Call::Open);
    return code;
}

int deleteFile(sqlite3_vfs *, const char *name, int syncFolder)
{
    const QString path = pathOf(name);
    if (disk->watches(path) && disk->fails(Call::Delete))
        return SQLITE_IOERR_DELETE;
    if (disk->watches(path))
        disk->note(path, Call::Delete);
    return system_->xDelete(system_, name, syncFolder);
}

sqlite3_vfs &shim()
{
    static sqlite3_vfs own = [] {
        sqlite3_vfs made = *system_; // what is not replaced works on names alone
        made.zName = "faulty";
        made.szOsFile += int(sizeof(File));
        made.xOpen = openFile;
        made.xDelete = deleteFile;
        return made;
    }();
    return own;
}

} // namespace

FaultyDisk::FaultyDisk(const QString &folder) : m_folder(folder + u'/')
{
    for (const QFileInfo &info : QDir(folder).entryInfoList(QDir::Files)) {
        QFile file(info.filePath());
        if (!file.open(QIODevice::ReadOnly))
            qFatal("a file of the folder cannot be read");
        m_files[info.filePath()] = {true, file.readAll(), {}};
    }
    disk = this;
    system_ = sqlite3_vfs_find(nullptr);
    sqlite3_vfs_register(&shim(), 1);
}

FaultyDisk::~FaultyDisk()
{
    sqlite3_vfs_unregister(&shim());
    sqlite3_vfs_register(system_, 1);
    disk = nullptr;
}

void FaultyDisk::strike(Fault fault, Call call, int nth)
{
    m_fault = fault;
    m_struckCall = call;
    m_callsLeft = nth;
    m_struck = false;
}

bool FaultyDisk::fails(Call call, bool grows)
{
    if (m_fault == Fault::None || call != m_struckCall || (m_fault == Fault::Full && !grows))
        return false;
    --m_callsLeft;
    m_struck |= m_callsLeft == 0;
    return m_callsLeft == 0 || (m_callsLeft < 0 && m_fault != Fault::Once);
}

void FaultyDisk::note(const QString &path, Call call, qint64 offset, const QByteArray &bytes)
{
    if (call == Call::Open)
        m_opened += path;
    State &file = m_files[path];
    if (call != Call::Sync) {
        file.inTheAir += {call, offset, bytes};
        return;
    }
    for (const Change &change : std::as_const(file.inTheAir))
        file.take(change);
    file.inTheAir.clear();
}

void FaultyDisk::State::take(const Change &change)
{
    if (change.call == Call::Write) {
        if (bytes.size() < change.offset)
            bytes.append(change.offset - bytes.size(), '\0');
        bytes.replace(change.offset, change.bytes.size(), change.bytes);
        return;
    }
    exists = change.call != Call::Delete;
    bytes.truncate(change.call == Call::Truncate ? change.offset : 0);
}

FaultyDisk::State FaultyDisk::afterPowerCut(const State &file, QRandomGenerator &dice)
{
    State left{file.exists, file.bytes, {}};
    enum Fate { Kept, Dropped, Torn, Noise, Count };
    // Often all goes one way: that is what a disk with a big or with no cache does.
    const int allAlike = dice.bounded(8);
    for (Change change : file.inTheAir) {
        const int fate = allAlike < Torn ? allAlike : dice.bounded(int(Count));
        const bool ofTheFolder = change.call == Call::Open || change.call == Call::Delete;
        if (fate == Dropped && ofTheFolder)
            return left; // what follows happened to a file that is not there
        if (fate == Dropped)
            continue;
        if (fate == Torn)
            change.bytes.truncate(dice.bounded(int(change.bytes.size()) + 1));
        if (fate == Noise)
            std::generate(change.bytes.begin(), change.bytes.end(),
                          [&] { return char(dice.generate()); });
        left.take(change);
    }
    return left;
}

void FaultyDisk::cutPower(QRandomGenerator &dice, const QString &into) const
{
    QStringList paths = m_files.keys();
    paths.sort(); // the same dice have to leave the same
    for (const QString &path : std::as_const(paths)) {
        const State left = afterPowerCut(m_files[path], dice);
        QFile file(into + u'/' + QFileInfo(path).fileName());
        if (left.exists
            && (!file.open(QIODevice::WriteOnly) || file.write(left.bytes) != left.bytes.size()))
            qFatal("the disk of the test is full");
    }
}
