// SPDX-License-Identifier: MIT
// A program folder for a measurement: the real look, and an empty Ledger that is closed.
#pragma once

#include "ledger/ledger.h"
#include "platform/programfolder.h"
#include "support/testledger.h"

#include <QCoreApplication>
#include <QDir>

/// The program's folder for as long as it lives.
class WorkFolder : public TestLedger
{
public:
    WorkFolder()
    {
        CloseLedger();
        const QString look = QStringLiteral("data/Styles/mirakla.qss");
        QDir().mkpath(programFile(QStringLiteral("data/Styles")));
        if (!QFile::copy(QCoreApplication::applicationDirPath() + u'/' + look, programFile(look)))
            qFatal("the look of the program is not beside the benchmarks");
    }
};
