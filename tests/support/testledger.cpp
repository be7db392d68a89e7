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

QStringList TestLedger::files() const
{
    return QDir(m_folder.filePath(u"data"_s)).entryList(QDir::Files);
}

QStringList TestLedger::run(const QString &sql, const QVariantList &values) const
{
    QStringList lines;
    for (const QVariantList &row : LedgerConnection->run(sql, values).rows)
        lines += QVariant(row).toStringList().join(u' ');
    return lines;
}

void TestLedger::addMember(int key, const QString &name, const QString &percent) const
{
    run(u"INSERT INTO tblMember (MPK, Mname, Mpercen) VALUES (?, ?, ?)"_s, {key, name, percent});
}

void copyProgramData(const QString &from, const QString &to)
{
    for (const auto &part : {u"/data/Styles/"_s, u"/data/mp3/"_s}) {
        QDir().mkpath(to + part);
        const QStringList files = QDir(from + part).entryList(QDir::Files);
        if (files.isEmpty())
            qFatal("nothing to copy in %s", qPrintable(from + part));
        for (const QString &file : files)
            QFile::copy(from + part + file, to + part + file);
    }
}

QString runStockTool(const QString &path, const QString &password, const QString &commands)
{
    QProcess tool;
    tool.setProcessChannelMode(QProcess::MergedChannels);
    tool.start(u"sqlcipher"_s, {u"-batch"_s, path});
    // Newer versions print a word for the key: what is above the dashes is dropped.
    if (!password.isEmpty())
        tool.write("PRAGMA key = '" + password.toUtf8()
                   + "'; PRAGMA cipher_compatibility = 3; SELECT '---';\n");
    tool.write(commands.toUtf8() + '\n');
    tool.closeWriteChannel();
    tool.waitForFinished();
    const QString printed = QString::fromUtf8(tool.readAll()).remove(u'\r');
    return printed.section(u"---\n"_s, -1).trimmed();
}
