// SPDX-License-Identifier: MIT
// Build tool that creates the empty Ledger shipped with the program. It links only desk_core, which
// shows that desk_core does not need QtWidgets.
#include "ledger/emptyledger.h"
#include "runtime/runtimeerror.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: make-empty-ledger FILE\n", stderr);
        return 2;
    }
    try {
        makeEmptyLedger(QCoreApplication::arguments().at(1));
    } catch (const RunTimeError &error) {
        std::fprintf(stderr, "make-empty-ledger: %s\n", qUtf8Printable(error.description()));
        return 1;
    }
    return 0;
}
