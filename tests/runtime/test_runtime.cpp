// SPDX-License-Identifier: MIT
// What a failure reports, and which failures a handler passes over. Numbers and texts are read a
// second time by the fuzz target of the values.
#include "runtime/runtimeerror.h"

#include <QTest>

using namespace Qt::StringLiterals;

class RuntimeTest : public QObject
{
    Q_OBJECT

private slots:
    void resumeNextPassesOverRunTimeErrorsOnly();
};

void RuntimeTest::resumeNextPassesOverRunTimeErrorsOnly()
{
    QVERIFY(resumeNext([] {}));
    QVERIFY(!resumeNext(raiseOverflow));
    // The end of the program must not be taken for a failed statement.
    QVERIFY_THROWS_EXCEPTION(int, resumeNext([] { throw 1; }));
}

QTEST_GUILESS_MAIN(RuntimeTest)
#include "test_runtime.moc"
