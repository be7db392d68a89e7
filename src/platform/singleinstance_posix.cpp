// SPDX-License-Identifier: MIT
#include "platform/singleinstance.h"

#include <QDir>
#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

bool becomeOnlyInstance()
{
    static bool isOnlyInstance = false;
    if (isOnlyInstance)
        return true;
    // The lock is on the open file and goes with the process, so the file itself stays and is
    // empty. Reading is enough to lock: the file may be another user's.
    const QByteArray path = QFile::encodeName(QDir::temp().filePath(u"mirakla-desk.lock"_s));
    constexpr mode_t ReadableByAll = 0444;
    int file = open(path.constData(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        file = open(path.constData(), O_RDONLY | O_CLOEXEC | O_CREAT, ReadableByAll);
    isOnlyInstance = file < 0 || flock(file, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    if (!isOnlyInstance)
        close(file);
    return isOnlyInstance;
}
