// SPDX-License-Identifier: MIT
// Books and programs to measure with.
#pragma once

#include "barefile.h"

#include "desktop/programfolder.h"
#include "ledger/ledger.h"
#include "program.h"
#include "support/testledger.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>

inline constexpr int CustomerCount = 200;

/// Returns a line of a class and customer. Its number is the last digits of @p digits.
inline BetLine betLine(size_t betClass, int customer, int digits)
{
    const BetClass &asked = BetClasses[betClass];
    return {&asked, customer, QByteArray::number(1000 + digits % 1000).right(asked.num23)};
}

/// Returns the lines of a draw, with mixed classes and numbers. Fifty consecutive lines belong to
/// the same customer, as in a ticket.
inline std::vector<BetLine> drawLines(int count)
{
    std::vector<BetLine> lines;
    lines.reserve(size_t(count));
    for (int at = 0; at < count; ++at) {
        const int customer = 1 + at / 50 % CustomerCount;
        lines.push_back(betLine(size_t(at % ClassCount), customer, at / ClassCount * 379));
    }
    return lines;
}

/// Serves as the program folder for the lifetime of the object: the real style sheet and sounds,
/// and a closed Ledger.
class WorkFolder : public TestLedger
{
public:
    /// Leaves the Ledger empty.
    WorkFolder()
    {
        CloseLedger();
        copyProgramData(QCoreApplication::applicationDirPath(), programFolder());
    }

    /// Fills the Ledger with customers, fifty hot numbers, and @p lines.
    explicit WorkFolder(const std::vector<BetLine> &lines) : WorkFolder()
    {
        ConnectLedger();
        const QString count =
            QStringLiteral("WITH RECURSIVE n(k) AS (SELECT 1 UNION ALL SELECT k + 1"
                           " FROM n WHERE k < ?) INSERT INTO ");
        run(count + QStringLiteral("tblMember SELECT k, 'ลูกค้า ' || k, '', 10 FROM n"),
            {CustomerCount});
        run(count
                + QStringLiteral("tblNumberFix SELECT k, substr(1000 + k * 137 % 1000, 3 - k % 2)"
                                 " FROM n"),
            {50});
        CloseLedger();
        insertBare(path().toUtf8(), lines, Durable::AllAtOnce);
    }

    /// Copies the closed Ledger and returns the path of the copy.
    QByteArray copy() const
    {
        QFile::copy(path(), path() + QStringLiteral(".copy"));
        return path().toUtf8() + ".copy";
    }
};

/// Starts the program on the Ledger of a WorkFolder and opens a page.
inline std::unique_ptr<MDIForm1> openProgram(int page)
{
    auto window = startProgram();
    if (!window || !QTest::qWaitForWindowActive(window.get()))
        qFatal("the program did not start");
    if (page != 0)
        window->openPage(page);
    QApplication::processEvents();
    return window;
}
