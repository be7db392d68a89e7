// SPDX-License-Identifier: MIT
// A program folder for a measurement: the real style sheet and sounds, and a closed, empty Ledger.
#pragma once

#include "desktop/programfolder.h"
#include "ledger/ledger.h"
#include "support/testledger.h"

#include <QCoreApplication>

/// Serves as the program folder for the lifetime of the object.
class WorkFolder : public TestLedger
{
public:
    WorkFolder()
    {
        CloseLedger();
        copyProgramData(QCoreApplication::applicationDirPath(), programFolder());
    }
};
