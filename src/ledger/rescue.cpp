// SPDX-License-Identifier: MIT
#include "ledger/rescue.h"

#include "desktop/clock.h"
#include "desktop/filesystem.h"
#include "ledger/database.h"
#include "runtime/runtimeerror.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

/// Returns a file name with the date and time, and with @p number unless it is 1.
QString datedName(const QString &begin, const QString &end, int number)
{
    const QString date = currentDateTime().toString(u"yyyy-MM-dd-hhmmss"_s);
    return begin + date + (number == 1 ? QString() : u"-%1"_s.arg(number)) + end;
}

/// Creates an empty file with an unused name and returns its path.
QString makeDated(const QString &begin, const QString &end)
{
    for (int number = 1;; ++number) {
        QFile file(datedName(begin, end, number));
        if (createPrivate(file))
            return file.fileName();
        if (!file.exists())
            raiseDatabaseFailure(file.errorString());
    }
}

void syncFolderOf(const QString &path)
{
    syncFolder(QFile::encodeName(QFileInfo(path).path()));
}

QString writeInto(const QString &folder, const Database &file, const QFileInfo &name,
                  const QByteArray &password)
{
    const QString end = name.suffix().isEmpty() ? QString() : u'.' + name.suffix();
    const QString path =
        makeDated(QDir(folder).absoluteFilePath(name.completeBaseName() + u"-rescued-"_s), end);
    try {
        Database copy(path, Database::Access::Write);
        copy.setKey(password);
        copy.configure();
        copy.execute("PRAGMA journal_mode = MEMORY"); // no second file that a failure would leave
        file.copyTo(copy);
    } catch (const RunTimeError &) {
        QFile::remove(path);
        throw;
    }
    syncFolderOf(path);
    return QDir::toNativeSeparators(path);
}

} // namespace

void renameForeignWal(const QString &path)
{
    for (int number = 1;; ++number) {
        const QString aside = datedName(path + u"-of-another-file-"_s, {}, number);
        if (QFile::exists(aside))
            continue;
        if (!QFile::rename(path, aside))
            raiseDatabaseFailure(u"%1 is of another file and cannot be renamed"_s.arg(path));
        makePrivate(QFile::encodeName(aside));
        break;
    }
    syncFolderOf(path);
}

QString rescue(const Database &file, const QString &path, const QByteArray &password)
{
    const QFileInfo name(path);
    const QStringList folders{name.path(), name.path() + u"/.."_s, QDir::homePath()};
    for (const QString &folder : folders) {
        try {
            return writeInto(folder, file, name, password);
        } catch (const RunTimeError &) {
            if (folder == folders.last())
                throw;
        }
    }
    Q_UNREACHABLE();
}
