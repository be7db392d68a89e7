// SPDX-License-Identifier: MIT
#include "support/otherreaders.h"

#include <QFile>
#include <QProcess>
#include <QThread>

using namespace Qt::StringLiterals;

/// Wine starts programs of the machine but neither waits for them nor reads their output, so the
/// answer is a file.
QStringList readByOthers(const QString &path)
{
    QString reader = QStringLiteral(DESK_FILE_READER);
    QString machinePath = path;
#ifdef Q_OS_WIN
    reader.prepend(u"Z:"_s);
    machinePath =
        qEnvironmentVariable("DESK_WINE_DRIVES") + u'/' + path.left(1).toLower() + path.mid(1);
#endif
    QFile answer(path + u".read"_s);
    QProcess::startDetached(reader, {machinePath, machinePath + u".read"_s});
    for (int tries = 0; !answer.open(QIODevice::ReadOnly); ++tries) {
        if (tries == 6000)
            qFatal("no answer from %s", qUtf8Printable(reader));
        QThread::msleep(5);
    }
    const QString lines = QString::fromUtf8(answer.readAll()).trimmed();
    answer.remove();
    return lines.split(u'\n');
}
