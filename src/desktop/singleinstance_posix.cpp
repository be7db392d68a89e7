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
int place = -1; ///< the locked file; -1 also where none can be had

} // namespace

bool becomeOnlyInstance()
{
    if (isOnlyInstance)
        return true;
    // The lock is on the open file and goes with the process, so the file itself stays and is
    // empty. Reading is enough to lock: the file may be another user's.
    const QByteArray path = QFile::encodeName(QDir::temp().filePath(u"mirakla-desk.lock"_s));
    constexpr mode_t ReadableByAll = 0444;
    place = open(path.constData(), O_RDONLY | O_CLOEXEC);
    if (place < 0) {
        place = open(path.constData(), O_RDONLY | O_CLOEXEC | O_CREAT, ReadableByAll);
        fchmod(place, ReadableByAll); // whatever the user's mask takes off
    }
    isOnlyInstance = place < 0 || flock(place, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    if (!isOnlyInstance)
        close(place);
    return isOnlyInstance;
}

void leaveOnlyInstance()
{
    if (isOnlyInstance && place >= 0)
        close(place);
    isOnlyInstance = false;
}
