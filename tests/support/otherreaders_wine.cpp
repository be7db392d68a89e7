// SPDX-License-Identifier: MIT
// Under Wine the readers are those of the machine: Wine starts a program of the machine, but neither
// waits for it nor takes its output, so the answer is waited for as a file.
#include "support/otherreaders.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

/// The name under which the machine knows a file.
QString machineName(const QString &path)
{
    return qEnvironmentVariable("DESK_WINE_DRIVES") + u'/' + path.left(1).toLower() + path.mid(1);
}

template<typename Read>
Read readOutside(const QString &kind, const QByteArray &bytes)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"file"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("no room for a temporary file");
    file.close();
    const QString answerPath = folder.filePath(u"answer"_s);
    const QString reader = u"Z:"_s + qEnvironmentVariable("DESK_OTHER_READER");
    QProcess::startDetached(reader, {kind, machineName(file.fileName()), machineName(answerPath)});
    QElapsedTimer waited;
    waited.start();
    while (!QFile::exists(answerPath)) {
        if (waited.hasExpired(30'000))
            qFatal("no answer from %s", qPrintable(reader));
        QThread::msleep(5);
    }
    QFile answer(answerPath);
    if (!answer.open(QIODevice::ReadOnly))
        qFatal("the answer cannot be read");
    QDataStream stream(&answer);
    Read read;
    stream >> read;
    return read;
}

} // namespace

ReadSheet readXls(const QByteArray &file)
{
    return readOutside<ReadSheet>(u"xls"_s, file);
}

ReadPdf readPdf(const QByteArray &file)
{
    return readOutside<ReadPdf>(u"pdf"_s, file);
}
