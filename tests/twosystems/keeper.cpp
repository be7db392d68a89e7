// SPDX-License-Identifier: MIT
// Works on a book and compares it with the model: the same program on two systems, so that each
// continues and reads what the other has written.
// Usage: keeper FOLDER DONE TURNS. Does the turns after those done by earlier runs.
#include "desktop/programfolder.h"
#include "ledger/ledger.h"
#include "model/step.h"
#include "support/same.h"

#include <QCoreApplication>
#include <QRandomGenerator>

#include <cstdlib>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int done = arguments.value(2).toInt();
    const int turns = arguments.value(3).toInt();
    setProgramFolder(arguments.value(1));
    ConnectLedger();
    CurrentUser = QStringLiteral("sv");
    model::Book book;
    for (int turn = 1; turn <= turns; ++turn) {
        QRandomGenerator random{quint32(turn)};
        using enum Step::Kind;
        for (const auto kind : {File, File, File, File, Cut, Cut, Check, Close, File, File, File,
                                File, Cut, Cut, Check}) {
            const Step step = Step::random(kind, random, 20, true);
            step.perform(book);
            if (turn > done)
                step.perform();
        }
    }
    same(QStringLiteral("Ledger"), ledgerRows(*LedgerConnection), book.rows());
    if (turns > done && turns % 3 == 0)
        std::_Exit(0); // leaves the WAL, as a killed process does
    CloseLedger();
}
