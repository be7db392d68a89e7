// SPDX-License-Identifier: MIT
#include "support/otherreaders.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

/// The name of a file for a program of this machine, which under Wine is another one.
QString machineName(const QString &path)
{
#ifdef Q_OS_WIN
    return qEnvironmentVariable("DESK_WINE_DRIVES") + u'/' + path.left(1).toLower() + path.mid(1);
#else
    return path;
#endif
}

} // namespace

/// Wine starts a program of the machine, but neither waits for it nor takes its output. So the
/// answer is a file.
QStringList readByOthers(const QString &path)
{
#ifdef Q_OS_WIN
    const QString reader = u"Z:" DESK_FILE_READER ""_s;
#else
    const QString reader = u"" DESK_FILE_READER ""_s;
#endif
    QFile answer(path + u".read"_s);
    QProcess::startDetached(reader, {machineName(path), machineName(answer.fileName())});
    QElapsedTimer waited;
    waited.start();
    while (!answer.open(QIODevice::ReadOnly)) {
        if (waited.hasExpired(30'000))
            qFatal("no answer from %s", qUtf8Printable(reader));
        QThread::msleep(5);
    }
    const QString lines = QString::fromUtf8(answer.readAll()).trimmed();
    answer.remove();
    return lines.split(u'\n');
}
