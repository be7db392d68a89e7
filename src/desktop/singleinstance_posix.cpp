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

bool isOnlyInstance = false;
int lockFile = -1; ///< -1 also if it could not be opened

} // namespace

bool becomeOnlyInstance()
{
    if (isOnlyInstance)
        return true;
    // The lock belongs to the open file and ends with the process; the empty file itself stays.
    // flock() needs no write access, so the file may belong to another user.
    const QByteArray path = QFile::encodeName(QDir::temp().filePath(u"mirakla-desk.lock"_s));
    constexpr mode_t ReadableByAll = 0444;
    lockFile = open(path.constData(), O_RDONLY | O_CLOEXEC);
    if (lockFile < 0) {
        lockFile = open(path.constData(), O_RDONLY | O_CLOEXEC | O_CREAT, ReadableByAll);
        fchmod(lockFile, ReadableByAll); // the umask may have cleared bits
    }
    isOnlyInstance =
        lockFile < 0 || flock(lockFile, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    if (!isOnlyInstance)
        close(lockFile);
    return isOnlyInstance;
}

void leaveOnlyInstance()
{
    if (isOnlyInstance && lockFile >= 0)
        close(lockFile);
    isOnlyInstance = false;
}
