// SPDX-License-Identifier: MIT
#include "platform/singleinstance.h"

#include "platform/programend.h"

#include <QDir>
#include <QLockFile>

#include <memory>

using namespace Qt::StringLiterals;

bool becomeOnlyInstance()
{
    static std::unique_ptr<QLockFile> lock;
    lock = std::make_unique<QLockFile>(QDir::temp().filePath(u"mirakla-desk.lock"_s));
    // No age makes a lock stale, only the death of its holder: a copy may run for weeks.
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0))
        return false;
    atProgramEnd([] { lock.reset(); });
    return true;
}
