// SPDX-License-Identifier: MIT
// Disks: power cuts at every sync, and calls that fail, each in its turn.
#include "desktop/programend.h"
#include "faults/day.h"
#include "faults/faults.h"
#include "faults/faultydisk.h"
#include "ledger/ledger.h"
#include "support/boxscript.h"
#include "support/outcome.h"

using namespace Qt::StringLiterals;

namespace {

const std::vector<Step::Kind> ShortDay{Step::File, Step::Cut,   Step::Cut,  Step::Check,
                                       Step::File, Step::Check, Step::Close};
const QString Refused = u"เชื่อมต่อฐานข้อมูลไม่ได้ : "_s;
const QString Report = u"Run-time error '-2147467259 (80004005)': "_s;

/// What came of a day as the program has it: an error that rises ends in the report.
struct Outcome
{
    qsizetype acknowledged = 0;
    QStringList boxes;
    int status = 0;

    void keep(
        const ProgramFolder &folder, Day day, const std::function<void()> &done = [] {})
    {
        const BoxScript script;
        status = endStatus([&] {
                     try {
                         folder.open();
                     } catch (const RunTimeError &error) { // as ConnectLedger does
                         refuse(Refused + error.description());
                         endProgram(1);
                     }
                     try {
                         LedgerConnection->setMaxWalPages(20); // some WALs within the day
                         day.perform([&] {
                             ++acknowledged;
                             done();
                         });
                     } catch (const RunTimeError &error) {
                         endWithReport(error);
                     }
                     endProgram(0);
                 }).value_or(-1);
        boxes = script.texts();
    }
};

} // namespace

void FaultsTest::powerCutLosesNoAcknowledgedStep()
{
    const int seeds = times("DESK_POWER_SEEDS", 3);
    const ProgramFolder folder;
    FaultyDisk disk(folder.data());
    QRandomGenerator dice(m_seed);
    std::vector<Step::Kind> kinds;
    for (int days = 0; days < 2; ++days) {
        kinds.insert(kinds.end(), 6, Step::File); // enough for the file to grow
        kinds.insert(kinds.end(), ShortDay.begin(), ShortDay.end());
    }
    const Day day(m_seed, kinds);
    Outcome outcome;
    int cuts = 0;
    QStringList wrong;
    disk.aheadOfSync = [&] {
        for (int seed = 0; seed < seeds && wrong.isEmpty(); ++seed, ++cuts) {
            const QTemporaryDir left;
            disk.cutPower(dice, left.path());
            model::Book book;
            const auto found = rowsLeftIn(left.filePath(u"ztkdata.ZDB"_s));
            if (!Day(day).leadsTo(found, outcome.acknowledged, book))
                wrong = QStringList(QString::number(outcome.acknowledged)) + found;
        }
    };
    outcome.keep(folder, day);
    QCOMPARE(outcome.status, 0);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
    qInfo("%d power cuts at %d syncs", cuts, cuts / seeds);
}

Q_DECLARE_METATYPE(Fault)
Q_DECLARE_METATYPE(Call)

void FaultsTest::failingCallLeavesWholeStatements_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<Call>("call");
    QTest::addColumn<QStringList>("words");
    const QString broken = u"disk I/O error"_s;
    const QString shut = u"unable to open database file"_s;
    // The engine takes what it cannot read at the start for a damaged or a foreign file.
    const QStringList unread{broken, u"database disk image is malformed"_s,
                             u"file is encrypted or is not a database"_s,
                             u"file is not a database"_s};
    const auto row = [](const char *name, Fault fault, Call call, const QStringList &words) {
        QTest::newRow(name) << fault << call << words;
    };
    row("a write", Fault::Once, Call::Write, {broken});
    row("all writes", Fault::Always, Call::Write, {broken});
    row("a sync", Fault::Once, Call::Sync, {broken});
    row("all syncs", Fault::Always, Call::Sync, {broken});
    row("a truncation", Fault::Once, Call::Truncate, {broken});
    row("all truncations", Fault::Always, Call::Truncate, {broken});
    row("an opening", Fault::Once, Call::Open, {shut});
    row("all openings", Fault::Always, Call::Open, {shut});
    row("a read", Fault::Once, Call::Read, unread);
    row("all reads", Fault::Always, Call::Read, unread);
    row("a removal", Fault::Once, Call::Delete, {broken});
    row("full disk", Fault::Full, Call::Write, {u"database or disk is full"_s});
}

void FaultsTest::failingCallLeavesWholeStatements()
{
    QFETCH(Fault, fault);
    QFETCH(Call, call);
    QFETCH(QStringList, words);
    const Day day(m_seed, ShortDay, true);
    int reports = 0;
    int nth = 0;
    for (bool struck = true; struck;) {
        const ProgramFolder folder;
        Outcome outcome;
        {
            FaultyDisk disk(folder.data());
            disk.strike(fault, call, ++nth);
            outcome.keep(folder, day);
            struck = disk.struck();
        }
        QVERIFY(outcome.status >= 0);
        const QStringList found = rowsLeftIn(folder.ledger());
        const QByteArray what = "call " + QByteArray::number(nth) + ", acknowledged "
                                + QByteArray::number(outcome.acknowledged) + ": "
                                + (outcome.boxes + found).join(u'\n').toUtf8();
        model::Book book;
        QVERIFY2(Day(day).leadsTo(found, outcome.acknowledged, book), what.constData());
        if (outcome.status == 0)
            continue;
        ++reports;
        QVERIFY2(struck && outcome.boxes.size() == 1, what.constData());
        const QString &box = outcome.boxes[0];
        QVERIFY2(box.startsWith(Refused) || box.startsWith(Report), what.constData());
        QVERIFY2(words.contains(box.section(u": "_s, -1)), what.constData());
    }
    qInfo("%d calls struck, %d reports", nth - 1, reports);
}

void FaultsTest::folderTurnedReadOnlyEndsInTheReport()
{
#ifdef Q_OS_WIN
    QSKIP("rights of a folder are not told there");
#endif
    const ProgramFolder folder;
    const Day day(m_seed, ShortDay, true);
    Outcome outcome;
    withPlainRights([&] {
        outcome.keep(folder, day, [&] {
            if (outcome.acknowledged == 7)
                QFile::setPermissions(folder.data(), QFile::ReadOwner | QFile::ExeOwner);
        });
    });
    QCOMPARE(outcome.boxes, QStringList(Report + u"attempt to write a readonly database"_s));
    QCOMPARE(outcome.status, 1);
    model::Book book;
    QVERIFY(Day(day).leadsTo(rowsLeftIn(folder.ledger()), outcome.acknowledged, book));

    const auto left = folder.bytes(); // with the journal, which could not be removed
    QCOMPARE(left.size(), 2);
    Outcome next;
    withPlainRights([&] { next.keep(folder, day); });
    QCOMPARE(next.boxes, QStringList(Refused + u"attempt to write a readonly database"_s));
    QVERIFY(folder.bytes() == left);
}
