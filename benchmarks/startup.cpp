// SPDX-License-Identifier: MIT
// From the start of a process to its first painted window, and the memory that it holds at rest.
#include "figure.h"
#include "workfolder.h"

#include <QFile>
#include <QProcess>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

struct Start
{
    double milliseconds; ///< from the birth of the process to its first painted window
    double megabytes;    ///< held at the end
};

/// The clock in milliseconds, the same in all processes.
double clockNow()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double, std::milli>(now).count();
}

QProcessEnvironment probeEnvironment(const char *platform)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, QLatin1String(platform));
    environment.insert(u"TMPDIR"_s, programFolder()); // or it would be a second copy of this one
    return environment;
}

void finish(QProcess &probe)
{
    if (!probe.waitForFinished() || probe.exitCode() != 0)
        qFatal("start_probe failed: %s", probe.readAllStandardError().constData());
}

/// Runs start_probe, which explains @p mode, in the program's folder.
Start startProbe(const char *platform, const QString &mode)
{
    QProcess probe;
    probe.setProcessEnvironment(probeEnvironment(platform));
    const double begin = clockNow();
    probe.start(QCoreApplication::applicationDirPath() + u"/start_probe"_s,
                {mode, programFolder()});
    finish(probe);
    const double painted = probe.readLine().trimmed().toDouble();
    const double kib = probe.readLine().trimmed().toDouble();
    return {painted - begin, kib * 1024 / 1e6};
}

/// Milliseconds from the birth of Wine's process to the program's first painted window.
double startUnderWine()
{
    const QString beginFile = programFolder() + u"/begin"_s;
    QProcess probe;
    auto environment = probeEnvironment("windows");
    environment.insert(u"DESK_WINE_BEGIN"_s, beginFile);
    probe.setProcessEnvironment(environment);
    probe.start(QStringLiteral(WINE),
                {QStringLiteral(WINDOWS_PROBE), u"program"_s, u"Z:"_s + programFolder()});
    finish(probe);
    const double painted = probe.readLine().trimmed().toDouble();
    QFile file(beginFile);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("wine.sh did not tell when it began");
    return painted - file.readAll().trimmed().toDouble() * 1000;
}

} // namespace

Measured measureStart(benchmark::State &state, const char *platform)
{
    const WorkFolder folder;
    Samples ours;
    Samples bare;
    startProbe(platform, u"program"_s); // brings the files into memory for both
    for ([[maybe_unused]] auto round : state) {
        ours.push_back(startProbe(platform, u"program"_s).milliseconds);
        bare.push_back(startProbe(platform, u"bare"_s).milliseconds);
        state.SetIterationTime(ours.back() / 1000);
    }
    return ratio(ours, bare, "ms");
}

Measured measureMemory(benchmark::State &state, const char *platform)
{
    const WorkFolder folder;
    Start start{};
    for ([[maybe_unused]] auto round : state) {
        start = startProbe(platform, u"rest"_s);
        state.SetIterationTime(start.milliseconds / 1000);
    }
    return {start.megabytes, {}};
}

bool isStartUnderWineKnown()
{
    return QFile::exists(QStringLiteral(WINDOWS_PROBE));
}

Measured measureStartUnderWine(benchmark::State &state)
{
    const WorkFolder folder;
    // Windows has its desktop up before a program starts; Wine's stays while a program is there.
    QProcess desktop;
    desktop.start(QStringLiteral(WINE), {u"notepad"_s});
    startUnderWine();
    Samples wine;
    Samples here;
    for ([[maybe_unused]] auto round : state) {
        wine.push_back(startUnderWine());
        here.push_back(startProbe("xcb", u"program"_s).milliseconds);
        state.SetIterationTime(wine.back() / 1000);
    }
    desktop.kill();
    desktop.waitForFinished();
    return ratio(wine, here, "ms");
}
