// SPDX-License-Identifier: MIT
#include "faults/victim.h"

#include "entry/save.h"
#include "ledger/ledger.h"
#include "platform/application.h"
#include "platform/msgbox.h"
#include "platform/programfolder.h"
#include "program.h"
#include "runtime/values.h"
#include "support/outcome.h"

#include <QTimer>

#include <cstdio>
#include <cstdlib>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// A step follows each row, which makes the bar the place to listen at.
struct Listener : ProgressBar
{
    explicit Listener(const std::function<void()> &heard) : filed(heard) {}
    void start(int) override {}
    void step() override { filed(); }
    void finish() override {}

    const std::function<void()> &filed;
};

void acknowledge()
{
    if (write(STDOUT_FILENO, ".", 1) != 1)
        qFatal("nobody listens");
}

[[noreturn]] void saveForEver(quint32 seed, Fault fault, int afterRow)
{
    QRandomGenerator random(seed);
    CurrentUser = u"sv"_s;
    ConnectLedger();
    for (int row = 0;;) {
        RandomTicket(random).save([&] {
            acknowledge();
            if (++row == afterRow)
                strike(fault, programFile(u"data"_s));
        });
        if (seed % 16 == 0) { // the clean end of a day and the start of the next
            CloseLedger();
            ConnectLedger();
        }
    }
}

int runProgram()
{
    const auto window = startProgram();
    if (!window)
        return 1;
    QRandomGenerator random(1);
    RandomTicket(random).save([] {});
    acknowledge();
    return Application::exec();
}

} // namespace

RandomTicket::RandomTicket(QRandomGenerator &random)
    : customer(u"ลูกค้า-%1"_s.arg(random.bounded(100)))
{
    for (int lines = random.bounded(1, 30); lines > 0; --lines) {
        const int grid = random.bounded(ClassCount);
        QString number;
        while (number.size() < BetClasses[size_t(grid)].num23)
            number += QString::number(random.bounded(10));
        ticket.AddLine(grid, number, QString::number(random.bounded(1, 99'999)));
    }
    if (random.bounded(2) == 1)
        discount = formatBaht(random.bounded(1, 99'999));
}

void RandomTicket::save(const std::function<void()> &filed) const
{
    Listener listener(filed);
    saveLines(ticket, customer, listener);
    saveDiscount(discount);
    if (!discount.isEmpty())
        filed();
}

Victim::Victim(const QString &folder, quint32 seed, Fault fault, int afterRow)
{
    m_process.start(QCoreApplication::applicationFilePath(),
                    {u"victim"_s, folder, QString::number(seed), QString::number(int(fault)),
                     QString::number(afterRow)});
}

int Victim::waitForEnd()
{
    const bool ended = m_process.waitForFinished(20'000);
    return ended && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

void Victim::kill()
{
    m_process.kill(); // SIGKILL: the process cannot put anything in order
    m_process.waitForFinished();
}

int liveAsVictim(int argc, char **argv)
{
    setProgramFolder(QString::fromLocal8Bit(argv[2]));
    const auto seed = quint32(std::atol(argv[3]));
    const auto fault = Fault(std::atoi(argv[4]));
    const int afterRow = std::atoi(argv[5]);
    Application application(argc, argv);
    setBoxShower([](const Box &box) {
        std::fputs(qUtf8Printable(box.text), stderr);
        return BoxAnswer::Cancel;
    });
    if (seed == 0)
        return runProgram();
    // From an event, since that is where the program catches what rises from a handler.
    QTimer::singleShot(0, &application, [&] { saveForEver(seed, fault, afterRow); });
    int status = 0;
    withPlainRights([&] { status = Application::exec(); });
    return status;
}
