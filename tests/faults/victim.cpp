// SPDX-License-Identifier: MIT
#include "faults/victim.h"

#include "desktop/application.h"
#include "desktop/msgbox.h"
#include "desktop/programfolder.h"
#include "faults/day.h"
#include "ledger/ledger.h"
#include "program.h"
#include "runtime/runtimeerror.h"

#include <cstdio>
#include <cstdlib>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

using namespace Qt::StringLiterals;

namespace {

void acknowledge()
{
    if (std::fputc('.', stdout) == EOF || std::fflush(stdout) != 0)
        qFatal("nobody listens");
}

void tellBoxes()
{
    setBoxShower([](const Box &box) {
        std::fputs(qUtf8Printable(box.text), stderr);
        return BoxAnswer::Cancel;
    });
}

int keepBook(quint32 seed)
{
    try {
        CurrentUser = u"sv"_s;
        ConnectLedger();
        for (Day day(seed);;) {
            day.perform(acknowledge, 1);
            if (seed % 16 == 0) { // the clean end of a day and the start of the next
                CloseLedger();
                ConnectLedger();
            }
        }
    } catch (const RunTimeError &error) {
        std::fputs(qUtf8Printable(error.report()), stderr);
        return 1;
    }
}

int runProgram()
{
    while (std::getchar() != EOF) {
    }
    const auto window = startProgram();
    if (!window)
        return 1;
    acknowledge();
    return Application::exec();
}

} // namespace

Victim::Victim(const QString &folder, quint32 seed)
{
#ifdef Q_OS_WIN
    // Without a console: one that is being started for a process that is struck stays behind, and holds
    // the output of the test open.
    m_process.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments *start) {
        start->flags = (start->flags & ~ulong(CREATE_NO_WINDOW)) | DETACHED_PROCESS;
    });
#endif
    m_process.start(QCoreApplication::applicationFilePath(),
                    {u"victim"_s, folder, QString::number(seed)});
    if (!m_process.waitForStarted())
        qFatal("no process: %s", qPrintable(m_process.errorString()));
}

bool Victim::waitForStep()
{
    while (m_process.bytesAvailable() == 0) { // some desktops also wake one for nothing
        if (!m_process.waitForReadyRead(60'000))
            return false;
    }
    return true;
}

int Victim::waitForEnd()
{
    const bool ended =
        m_process.state() == QProcess::NotRunning || m_process.waitForFinished(60'000);
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
    if (seed != 0) {
        const QCoreApplication application(argc, argv);
        tellBoxes();
        return keepBook(seed);
    }
    const Application application(argc, argv);
    tellBoxes();
    return runProgram();
}
