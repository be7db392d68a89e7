// SPDX-License-Identifier: MIT
#include "faults/faultydisk.h"

#include <QDir>

#include <cerrno>
#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

Fault diskFault = Fault::None;
QString watchedFolder;
QString mirrorFolder;

int fail(int error)
{
    errno = error;
    return -1;
}

void copyToMirror(int file)
{
    const QFileInfo source(QFile::symLinkTarget(u"/proc/self/fd/%1"_s.arg(file)));
    if (watchedFolder.isEmpty() || source.path() != watchedFolder)
        return;
    const QString copy = mirrorFolder + u'/' + source.fileName();
    QFile::remove(copy);
    if (!QFile::copy(source.filePath(), copy))
        qFatal("no copy of a file that was brought to the disk");
}

} // namespace

// The engine's calls land here, since a program's own functions go before those of a library.

extern "C" ssize_t pwrite64(int fd, const void *buf, size_t n, off64_t offset)
{
    struct stat state = {};
    if (diskFault == Fault::Full && (fstat(fd, &state) != 0 || offset + off64_t(n) > state.st_size))
        return fail(ENOSPC);
    return syscall(SYS_pwrite64, fd, buf, n, offset);
}

extern "C" int fdatasync(int fildes)
{
    if (diskFault == Fault::NoPromise || syscall(SYS_fdatasync, fildes) != 0)
        return fail(EIO);
    copyToMirror(fildes);
    return 0;
}

void strike(Fault fault, const QString &folder)
{
    diskFault = fault;
    constexpr rlim_t Bytes = 100'001; // in the middle of a page
    const rlimit limit{Bytes, Bytes};
    std::signal(SIGXFSZ, SIG_IGN);
    if (fault == Fault::SizeLimit && setrlimit(RLIMIT_FSIZE, &limit) != 0)
        qFatal("the size of files cannot be limited");
    if (fault == Fault::ReadOnlyFolder)
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
}

void mirrorSafeBytes(const QString &folder, const QString &mirror)
{
    watchedFolder = folder;
    mirrorFolder = mirror;
    for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::Files))
        QFile::copy(file.filePath(), mirror + u'/' + file.fileName());
}
