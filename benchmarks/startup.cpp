// SPDX-License-Identifier: MIT
// From the start of a process to its first painted window, and the memory that it holds at rest.
#include "figure.h"
#include "workfolder.h"

#include <QProcess>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

struct Start
{
    double milliseconds; ///< from the birth of the process to its first painted window
    double megabytes;    ///< held at the end
};

/// Runs start_probe, which explains @p mode, in the program's folder.
Start startProbe(const char *platform, const QString &mode)
{
    QProcess probe;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, QLatin1String(platform));
    environment.insert(u"TMPDIR"_s, programFolder()); // or it would be a second copy of this one
    probe.setProcessEnvironment(environment);
    const auto begin = std::chrono::steady_clock::now().time_since_epoch();
    probe.start(QCoreApplication::applicationDirPath() + u"/start_probe"_s,
                {mode, programFolder()});
    if (!probe.waitForFinished() || probe.exitCode() != 0)
        qFatal("start_probe failed: %s", probe.readAllStandardError().constData());
    const double painted = probe.readLine().trimmed().toDouble();
    const double kib = probe.readLine().trimmed().toDouble();
    return {painted - std::chrono::duration<double, std::milli>(begin).count(), kib * 1024 / 1e6};
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
