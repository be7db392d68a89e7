// SPDX-License-Identifier: MIT
// From the start of a process to its first painted window, and the memory that it holds at rest.
#include "figure.h"
#include "workfolder.h"

#include <QDir>
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

/// A Windows of its own, without the type of this machine: Wine would list hundreds of families at
/// each start, where Windows has few and knows them.
QProcessEnvironment wineEnvironment()
{
    auto environment = probeEnvironment("windows");
    environment.insert(u"DESK_WINEPREFIX"_s, QStringLiteral(WINDOWS_BUILD ".start"));
    environment.insert(u"FONTCONFIG_FILE"_s, programFolder() + u"/types.conf"_s);
    environment.insert(u"DESK_WINE_BEGIN"_s, programFolder() + u"/begin"_s);
    return environment;
}

/// Milliseconds from the birth of Wine's process to the program's first painted window.
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
        qFatal("wine.sh did not tell when it began");
    return painted - begin.readAll().trimmed().toDouble() * 1000;
}

/// Lays out what the program is shipped with, and tells Wine of no type beside it.
void shipType()
{
    const QDir type(QStringLiteral(WINDOWS_BUILD "/fonts"));
    QDir(programFolder()).mkdir(u"fonts"_s);
    for (const QString &file : type.entryList(QDir::Files))
        QFile::copy(type.filePath(file), programFolder() + u"/fonts/"_s + file);
    QFile none(programFolder() + u"/types.conf"_s);
    if (!none.open(QIODevice::WriteOnly) || none.write("<fontconfig/>\n") < 0)
        qFatal("the folder of the program cannot be written");
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
    return QFile::exists(QStringLiteral(WINDOWS_BUILD "/start_probe.exe"));
}

Measured measureStartUnderWine(benchmark::State &state)
{
    const WorkFolder folder;
    shipType();
    startUnderWine(); // the first time makes the Windows
    // Windows has its desktop up before a program starts; Wine's stays while a program is there.
    QProcess desktop;
    desktop.setProcessEnvironment(wineEnvironment());
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
