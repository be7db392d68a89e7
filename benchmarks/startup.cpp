// SPDX-License-Identifier: MIT
// Measures the time from the start of a process to its first painted window, and its idle memory.
#include "book.h"
#include "figure.h"

#include <QDir>
#include <QProcess>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

struct Start
{
    double milliseconds; ///< from the start of the process to its first painted window
    double megabytes;    ///< resident memory when start_probe exits
};

/// Returns the milliseconds since 1970, as start_probe prints them. A steady clock cannot be used:
/// under Wine it is CLOCK_MONOTONIC_RAW, which drifts from the CLOCK_MONOTONIC of Linux programs.
double timeNow()
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration<double, std::milli>(now).count();
}

QProcessEnvironment probeEnvironment(const char *platform)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, QLatin1String(platform));
    environment.insert(u"TMPDIR"_s, programFolder()); // a lock file of its own
    return environment;
}

void finish(QProcess &probe)
{
    if (!probe.waitForFinished() || probe.exitCode() != 0)
        qFatal("start_probe failed: %s", probe.readAllStandardError().constData());
}

/// Runs start_probe with the program's folder. For @p mode see startprobe.cpp.
Start startProbe(const char *platform, const QString &mode)
{
    QProcess probe;
    probe.setProcessEnvironment(probeEnvironment(platform));
    const double begin = timeNow();
    probe.start(QCoreApplication::applicationDirPath() + u"/start_probe"_s,
                {mode, programFolder()});
    finish(probe);
    const double painted = probe.readLine().trimmed().toDouble();
    const double kib = probe.readLine().trimmed().toDouble();
    return {painted - begin, kib * 1024 / 1e6};
}

/// Returns an environment with its own Wine prefix and without the machine's fonts: Wine would read
/// hundreds of them at each start, while Windows has fewer and caches them.
QProcessEnvironment wineEnvironment()
{
    auto environment = probeEnvironment("windows");
    environment.insert(u"DESK_WINEPREFIX"_s, QStringLiteral(WINDOWS_BUILD ".start"));
    environment.insert(u"FONTCONFIG_FILE"_s, programFolder() + u"/fonts.conf"_s);
    environment.insert(u"DESK_WINE_BEGIN"_s, programFolder() + u"/begin"_s);
    return environment;
}

/// Returns the milliseconds from the start of Wine to the program's first painted window.
double startUnderWine()
{
    QProcess probe;
    probe.setProcessEnvironment(wineEnvironment());
    probe.start(QStringLiteral(WINE), {QStringLiteral(WINDOWS_BUILD "/start_probe.exe"),
                                       u"program"_s, u"Z:"_s + programFolder()});
    finish(probe);
    const double painted = probe.readLine().trimmed().toDouble();
    QFile begin(programFolder() + u"/begin"_s);
    if (!begin.open(QIODevice::ReadOnly))
        qFatal("wine.sh did not write its start time");
    return painted - begin.readAll().trimmed().toDouble() * 1000;
}

/// Copies the shipped fonts into the program's folder and hides all others from Wine.
void copyShippedFonts()
{
    const QDir fonts(QStringLiteral(WINDOWS_BUILD "/fonts"));
    QDir(programFolder()).mkdir(u"fonts"_s);
    for (const QString &file : fonts.entryList(QDir::Files))
        QFile::copy(fonts.filePath(file), programFolder() + u"/fonts/"_s + file);
    QFile none(programFolder() + u"/fonts.conf"_s);
    if (!none.open(QIODevice::WriteOnly) || none.write("<fontconfig/>\n") < 0)
        qFatal("the program's folder is not writable");
}

} // namespace

Measured measureStart(benchmark::State &state, const char *platform)
{
    const WorkFolder folder;
    Samples ours;
    Samples bare;
    startProbe(platform, u"program"_s); // fills the page cache for both
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

bool isWindowsProgramBuilt()
{
    return QFile::exists(QStringLiteral(WINDOWS_BUILD "/start_probe.exe"));
}

Measured measureStartUnderWine(benchmark::State &state)
{
    const WorkFolder folder;
    copyShippedFonts();
    startUnderWine(); // creates the Wine prefix
    // On Windows the desktop runs before a program starts. Wine's desktop and services exit with
    // the last program, so one program runs all the time.
    QProcess keepAlive;
    keepAlive.setProcessEnvironment(wineEnvironment());
    keepAlive.start(QStringLiteral(WINE), {u"notepad"_s});
    startUnderWine(); // not counted: the desktop may only now be starting
    Samples wine;
    Samples here;
    for ([[maybe_unused]] auto round : state) {
        wine.push_back(startUnderWine());
        here.push_back(startProbe("xcb", u"program"_s).milliseconds);
        state.SetIterationTime(wine.back() / 1000);
    }
    keepAlive.kill();
    keepAlive.waitForFinished();
    return ratio(wine, here, "ms");
}
