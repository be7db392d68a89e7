// SPDX-License-Identifier: MIT
// How values behave: amounts as texts, texts as numbers, sums that cannot wrap, and what a failure
// reports.
#include "runtime/runtimeerror.h"
#include "runtime/values.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The number that a conversion gives, or "error" with the number of the error it raises.
template<typename Conversion>
QString outcome(Conversion &&conversion)
{
    try {
        return QString::number(double(conversion()), 'g', 12);
    } catch (const RunTimeError &error) {
        return u"error %1"_s.arg(int(error.number()));
    }
}

} // namespace

class RuntimeTest : public QObject
{
    Q_OBJECT

private slots:
    void amountAsText_data();
    void amountAsText();
    void textAsNumber_data();
    void textAsNumber();
    void sumsNeverWrapRound();
    void reportTellsNumberAndWords();
    void resumeNextPassesOverRunTimeErrorsOnly();
};

void RuntimeTest::amountAsText_data()
{
    QTest::addColumn<double>("amount");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero prints nothing") << 0.0 << QString();
    QTest::newRow("what rounds to zero prints nothing, not a minus") << -0.4 << QString();
    QTest::newRow("three digits take no comma") << 999.0 << u"999"_s;
    QTest::newRow("a loss keeps its minus clear of the comma") << -123456.0 << u"-123,456"_s;
    QTest::newRow("a half goes away from zero") << 2.5 << u"3"_s;
    QTest::newRow("a half of a loss too") << -2.5 << u"-3"_s;
    QTest::newRow("rounding can add a comma") << 999.5 << u"1,000"_s;
    QTest::newRow("beyond 32 bits") << 9999999999.0 << u"9,999,999,999"_s;
}

void RuntimeTest::amountAsText()
{
    QFETCH(double, amount);
    QTEST(formatBaht(amount), "text");
}

void RuntimeTest::textAsNumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("asDoubleLongInteger");
    QTest::newRow("commas") << u"1,050"_s << u"1050, 1050, 1050"_s;
    QTest::newRow("blanks around") << u"  12 "_s << u"12, 12, 12"_s;
    QTest::newRow("no text") << u""_s << u"error 13, error 13, error 13"_s;
    QTest::newRow("blanks alone") << u"  "_s << u"error 13, error 13, error 13"_s;
    QTest::newRow("a sign alone") << u"-"_s << u"error 13, error 13, error 13"_s;
    QTest::newRow("digits with a tail") << u"12a"_s << u"error 13, error 13, error 13"_s;
    QTest::newRow("Thai digits") << u"๑๒"_s << u"error 13, error 13, error 13"_s;
    QTest::newRow("a half goes down to even") << u"2.5"_s << u"2.5, 2, 2"_s;
    QTest::newRow("a half goes up to even") << u"1,051.5"_s << u"1051.5, 1052, 1052"_s;
    QTest::newRow("a negative half too") << u"-2.5"_s << u"-2.5, -2, -2"_s;
    QTest::newRow("rounds out of 16 bits") << u"32767.5"_s << u"32767.5, 32768, error 6"_s;
    QTest::newRow("rounds back into them") << u"-32768.5"_s << u"-32768.5, -32768, -32768"_s;
    QTest::newRow("rounds out of 32 bits")
        << u"2147483647.5"_s << u"2147483647.5, error 6, error 6"_s;
    QTest::newRow("nineteen digits") << u"9999999999999999999"_s << u"1e+19, error 6, error 6"_s;
    QTest::newRow("beyond a double") << u"1e400"_s << u"error 6, error 6, error 6"_s;
    QTest::newRow("too small for a double") << u"1e-400"_s << u"0, 0, 0"_s;
}

void RuntimeTest::textAsNumber()
{
    QFETCH(QString, text);
    const QStringList outcomes{outcome([&] { return CDbl(text); }),
                               outcome([&] { return CLng(text); }),
                               outcome([&] { return CInt(text); })};
    QTEST(outcomes.join(u", "_s), "asDoubleLongInteger");
}

void RuntimeTest::sumsNeverWrapRound()
{
    const qint32 largest = 2147483647;
    QCOMPARE(addLong({largest, -1, 1}), largest);
    QCOMPARE(outcome([&] { return addLong({largest, 1}); }), u"error 6"_s);
    QCOMPARE(outcome([&] { return addLong({largest, 1, -1}); }), u"error 6"_s);
}

void RuntimeTest::reportTellsNumberAndWords()
{
    QCOMPARE(RunTimeError(RunTimeError::TypeMismatch, u"Type mismatch"_s).report(),
             u"Run-time error '13': Type mismatch"_s);
    // The engine's words can hold anything, a "%1" too.
    QCOMPARE(RunTimeError(RunTimeError::DatabaseFailure, u"no such table: %1"_s).report(),
             u"Run-time error '-2147467259 (80004005)': no such table: %1"_s);
}

void RuntimeTest::resumeNextPassesOverRunTimeErrorsOnly()
{
    QVERIFY(resumeNext([] {}));
    QVERIFY(!resumeNext(raiseOverflow));
    // The end of the program must not be taken for a failed statement.
    QVERIFY_THROWS_EXCEPTION(int, resumeNext([] { throw 1; }));
}

QTEST_GUILESS_MAIN(RuntimeTest)
#include "test_runtime.moc"
