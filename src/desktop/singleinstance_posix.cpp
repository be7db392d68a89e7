// SPDX-License-Identifier: MIT
#include "desktop/singleinstance.h"

#include <QDir>
#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

int lockFile = -1; ///< -1 while this copy has no lock

/// Our file is an empty one. Everybody can create another one of its name, or a link, FIFO or
/// folder, in the temporary folder.
bool isLockFile(int file)
{
    struct stat found = {};
    return fstat(file, &found) == 0 && S_ISREG(found.st_mode) && found.st_nlink == 1
           && found.st_size == 0;
}

/// Opens the lock file, and creates it if it is missing. Returns -1 if that fails.
int openLockFile()
{
    const QByteArray path = QFile::encodeName(QDir::temp().filePath(u"mirakla-desk.lock"_s));
    // flock() needs no write access, so the file may belong to another user.
    constexpr mode_t ReadableByAll = 0444;
    constexpr int Flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    int file = open(path.constData(), Flags | O_CREAT | O_EXCL, ReadableByAll);
    const bool isNew = file >= 0;
    if (!isNew)
        file = open(path.constData(), Flags);
    if (file < 0)
        return -1;
    if (isLockFile(file)
        && (!isNew || fchmod(file, ReadableByAll) == 0)) // the umask may have cleared bits
        return file;
    close(file);
    return -1;
}

} // namespace

bool becomeOnlyInstance()
{
    if (hasInstanceLock())
        return true;
    // The lock belongs to the open file and ends with the process; the empty file itself stays.
    const int file = openLockFile();
    if (file < 0)
        return true;
    if (flock(file, LOCK_EX | LOCK_NB) == 0) {
        lockFile = file;
        return true;
    }
    const bool isTaken = errno == EWOULDBLOCK;
    close(file);
    return !isTaken;
}

bool hasInstanceLock()
{
    return lockFile >= 0;
}

void leaveOnlyInstance()
{
    if (hasInstanceLock())
        close(lockFile);
    lockFile = -1;
}
