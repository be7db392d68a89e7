// SPDX-License-Identifier: MIT
// Processes: kills, and copies of the program that start together. The long runs are
//   DESK_KILLS=10000 test_faults killLosesNoAcknowledgedStep
//   DESK_POWER_SEEDS=100 test_faults powerCutLosesNoAcknowledgedStep
// DESK_FAULT_SEED repeats the dice of a run.
#include "desktop/programend.h"
#include "desktop/programfolder.h"
#include "faults/day.h"
#include "faults/faults.h"
#include "faults/rawpages.h"
#include "faults/victim.h"
#include "ledger/emptyledger.h"
#include "ledger/ledger.h"
#include "runtime/runtimeerror.h"

#include <QElapsedTimer>
#include <QThread>

#include <memory>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString &pristineLedger()
{
    static const QTemporaryDir folder;
    static const QString path = folder.filePath(u"pristine"_s);
    if (!QFile::exists(path))
        makeEmptyLedger(path);
    return path;
}

} // namespace

ProgramFolder::ProgramFolder()
{
    QDir(path()).mkdir(u"data"_s);
    QFile::copy(pristineLedger(), ledger());
    setProgramFolder(path());
}

ProgramFolder::~ProgramFolder()
{
    CloseLedger();
    setProgramFolder({});
    QFile::setPermissions(data(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QByteArray ProgramFolder::key()
{
    return readyKey(pristineLedger());
}

void ProgramFolder::open() const
{
    LedgerConnection = Connection::open(ledger(), key());
    CurrentUser = u"sv"_s;
    atProgramEnd(CloseLedger);
}

QMap<QString, QByteArray> ProgramFolder::bytes() const
{
    QMap<QString, QByteArray> all;
    for (const QFileInfo &info : QDir(data()).entryInfoList(QDir::Files | QDir::Hidden)) {
        QFile file(info.filePath());
        all[info.fileName()] = file.open(QIODevice::ReadOnly) ? file.readAll() : "unreadable";
    }
    return all;
}

QStringList rowsLeftIn(const QString &ledger)
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath(u"copy"_s);
    QFile::copy(ledger, copy);
    QFile::copy(ledger + u"-wal"_s, copy + u"-wal"_s);
    QStringList rows;
    try {
        const auto opened = Connection::open(copy, ProgramFolder::key());
        const auto damage = opened->run(u"PRAGMA integrity_check"_s).rows[0][0].toString();
        rows = damage == u"ok" ? ledgerRows(*opened) : QStringList(damage);
    } catch (const RunTimeError &error) {
        return {error.report()};
    }
    // SQLite does not read free pages. By now the WAL has been moved into the file.
    const bool isSigned = readRawPages(copy, copy).broken.isEmpty();
    return isSigned ? rows : QStringList(u"pages with a wrong signature"_s);
}

int FaultsTest::times(const char *name, int sample)
{
    bool given = false;
    const int asked = qEnvironmentVariableIntValue(name, &given);
    return given ? asked : sample;
}

void FaultsTest::initTestCase()
{
    m_seed = quint32(times("DESK_FAULT_SEED", 0));
    if (m_seed == 0)
        m_seed = QRandomGenerator::global()->bounded(1U, 1'000'000'000U);
    qInfo("DESK_FAULT_SEED=%u", m_seed);
    qputenv("TMPDIR", m_place.path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", m_place.path().toUtf8());
}

void FaultsTest::killLosesNoAcknowledgedStep()
{
    QRandomGenerator dice(m_seed);
    std::optional<ProgramFolder> folder;
    model::Book book;
    qsizetype steps = 0;
    const int kills = times("DESK_KILLS", 300);
    for (int kill = 0; kill < kills; ++kill) {
        if (kill % 25 == 0) { // each book outlives many kills, but stays quick to read
            folder.emplace();
            book = {};
        }
        const quint32 seed = dice.bounded(1U, 1'000'000'000U);
        Victim victim(folder->path(), seed);
        if (kill % 10 == 9) // a start is struck, or what comes right behind it
            QThread::usleep(dice.bounded(150'000U));
        else if (!victim.waitForStep())
            QFAIL(qPrintable(victim.boxes()));
        QThread::usleep(dice.bounded(20'000U));
        victim.kill();
        QCOMPARE(victim.boxes(), QString());
        const qsizetype acknowledged = victim.acknowledged();
        const QStringList found = rowsLeftIn(folder->ledger());
        QVERIFY2(Day(seed).leadsTo(found, acknowledged, book),
                 qPrintable(u"kill %1, day %2, %3 acknowledged, then found:\n%4"_s.arg(kill)
                                .arg(seed)
                                .arg(acknowledged)
                                .arg(found.join(u'\n'))));
        steps += acknowledged;
        if (kill % 500 == 499)
            qInfo("%d kills", kill + 1);
    }
    qInfo("%d kills among %d steps", kills, int(steps));
}

void FaultsTest::oneOfManyCopiesLives()
{
    constexpr int Copies = 100;
    const ProgramFolder folder;
    std::vector<std::unique_ptr<Victim>> copies(Copies);
    for (auto &copy : copies)
        copy = std::make_unique<Victim>(folder.path());
    for (const auto &copy : copies)
        copy->openGate();
    Victim *living = nullptr;
    for (const auto &copy : copies) {
        if (copy->waitForStep()) {
            QVERIFY(!living);
            living = copy.get();
            continue;
        }
        QCOMPARE(copy->waitForEnd(), 1);
        const QString box = copy->boxes();
        QVERIFY2(box.startsWith(u"โปรแกรมถูกเปิดใช้อยู่แล้ว"_s), qPrintable(box));
    }
    QVERIFY(living);
    const auto before = folder.bytes();
    Victim late(folder.path());
    late.openGate();
    QCOMPARE(late.waitForEnd(), 1);
    QVERIFY(folder.bytes() == before);

    living->kill(); // a dead copy holds nothing
    QElapsedTimer time;
    time.start();
    Victim next(folder.path());
    next.openGate();
    QVERIFY2(next.waitForStep(), qPrintable(next.boxes()));
    qInfo("start after a kill: %d ms", int(time.elapsed()));
    QVERIFY(time.elapsed() < 2000);
}

int main(int argc, char **argv)
{
    if (argc > 2 && qstrcmp(argv[1], "victim") == 0)
        return liveAsVictim(argc, argv);
    qputenv("QTEST_FUNCTION_TIMEOUT", "2000000000"); // the long runs take as long as they take
    QCoreApplication application(argc, argv);
    FaultsTest test;
    return QTest::qExec(&test, argc, argv);
}
