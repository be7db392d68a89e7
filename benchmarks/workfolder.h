// SPDX-License-Identifier: MIT
// A program folder for a measurement: the real style sheet and sounds, and a closed, empty Ledger.
#pragma once

#include "desktop/programfolder.h"
#include "ledger/ledger.h"
#include "support/testledger.h"

#include <QCoreApplication>

/// Is the program's folder as long as the object exists.
class WorkFolder : public TestLedger
{
public:
    WorkFolder()
    {
        CloseLedger();
        copyProgramData(QCoreApplication::applicationDirPath(), programFolder());
    }
};
