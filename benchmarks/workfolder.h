// SPDX-License-Identifier: MIT
// A program folder for a measurement: the real look and words, and an empty Ledger that is closed.
#pragma once

#include "desktop/programfolder.h"
#include "ledger/ledger.h"
#include "support/testledger.h"

#include <QCoreApplication>

/// The program's folder for as long as it lives.
class WorkFolder : public TestLedger
{
public:
    WorkFolder()
    {
        CloseLedger();
        copyProgramData(QCoreApplication::applicationDirPath(), programFolder());
    }
};
