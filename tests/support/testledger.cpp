// SPDX-License-Identifier: MIT
#include "support/testledger.h"

#include "desktop/programfolder.h"
#include "ledger/emptyledger.h"
#include "ledger/ledger.h"

#include <QDir>
#include <QProcess>

using namespace Qt::StringLiterals;

TestLedger::TestLedger()
{
    QDir(m_folder.path()).mkdir(u"data"_s);
    makeEmptyLedger(path());
    setProgramFolder(m_folder.path());
    ConnectLedger();
    CurrentUser = u"sv"_s;
}

TestLedger::~TestLedger()
{
    CloseLedger();
    setProgramFolder({});
}

QString TestLedger::path() const
{
    return m_folder.filePath(u"data/ztkdata.ZDB"_s);
}

QStringList TestLedger::files() const
{
    return QDir(m_folder.filePath(u"data"_s)).entryList(QDir::NoDotAndDotDot | QDir::AllEntries);
}

QStringList TestLedger::run(const QString &sql, const QVariantList &values) const
{
    QStringList lines;
    for (const QVariantList &row : LedgerConnection->run(sql, values).rows) {
        QStringList fields;
        for (const QVariant &field : row)
            fields += field.toString();
        lines += fields.join(u' ');
    }
    return lines;
}

void TestLedger::addMember(int key, const QString &name, const QString &percent) const
{
    run(u"INSERT INTO tblMember (MPK, Mname, Mpercen) VALUES (?, ?, ?)"_s, {key, name, percent});
}

void copyProgramData(const QString &from, const QString &to)
{
    for (const auto &part : {u"/data/Styles"_s, u"/data/mp3"_s}) {
        QDir().mkpath(to + part);
        const QStringList files = QDir(from + part).entryList(QDir::Files);
        if (files.isEmpty())
            qFatal("nothing to copy in %s", qPrintable(from + part));
        for (const QString &file : files)
            QFile::copy(from + part + u'/' + file, to + part + u'/' + file);
    }
}

QString runStockTool(const QString &path, const QString &password, const QString &commands)
{
    QProcess tool;
    tool.setProcessChannelMode(QProcess::MergedChannels);
    tool.start(u"sqlcipher"_s, {u"-batch"_s, path});
    // Newer versions print a word for the key; what stands above the dashes is dropped.
    if (!password.isEmpty())
        tool.write(
            u"PRAGMA key = '%1'; PRAGMA cipher_compatibility = 3; SELECT '---';\n"_s.arg(password)
                .toUtf8());
    tool.write(commands.toUtf8() + '\n');
    tool.closeWriteChannel();
    tool.waitForFinished();
    const QString printed = QString::fromUtf8(tool.readAll()).remove(u'\r');
    const qsizetype dashes = printed.indexOf(u"---\n"_s);
    return printed.sliced(dashes < 0 ? 0 : dashes + 4).trimmed();
}
