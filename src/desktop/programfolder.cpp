// SPDX-License-Identifier: MIT
#include "desktop/programfolder.h"

#include <QCoreApplication>

namespace {

QString folderOfTests;

} // namespace

QString programFolder()
{
    return folderOfTests.isEmpty() ? QCoreApplication::applicationDirPath() : folderOfTests;
}

void setProgramFolder(const QString &folder)
{
    folderOfTests = folder;
}

QString programFile(const QString &relativePath)
{
    const QString folder = programFolder();
    return folder.endsWith(u'/') ? folder + relativePath : folder + u'/' + relativePath;
}
