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

QStringList TestLedger::run(const QString &sql, const QVariantList &values) const
{
    QStringList lines;
    for (const QVariantList &row : LedgerConnection->run(sql, values).rows)
        lines += QVariant(row).toStringList().join(u' ');
    return lines;
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

void runStockTool(const QString &path, const QString &statements)
{
    QProcess tool;
    tool.start(u"sqlcipher"_s, {u"-batch"_s, path});
    tool.write("PRAGMA key = '639417'; PRAGMA cipher_compatibility = 3;\n" + statements.toUtf8());
    tool.closeWriteChannel();
    if (!tool.waitForFinished())
        qFatal("the shell of SQLCipher does not run");
}
