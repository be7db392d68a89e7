// SPDX-License-Identifier: MIT
// Plays scripts. Each is played in a process of its own, and in another one behind each failure and
// each end of the program: a dialog that is open cannot be left from outside, and the end is real.
#include "desktop/application.h"
#include "script/player.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int MostSilence = 60'000; ///< milliseconds without a step

/// Where a process has come to, and how it ended.
struct Place
{
    int atCase;
    int atStep;
    int status = -1; ///< -1 if it crashed or hung
};

/// Plays from @p from on in a process that this one watches.
Place playOn(const QString &script, const QString &folder, Place from)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(
        QCoreApplication::applicationFilePath(),
        {u"--play"_s, folder, QString::number(from.atCase), QString::number(from.atStep), script});
    while (process.waitForReadyRead(MostSilence)) {
        while (process.canReadLine()) {
            const QList<QByteArray> words = process.readLine().trimmed().split(' ');
            if (words.value(0) == "@")
                from = {words.value(1).toInt(), words.value(2).toInt()};
        }
    }
    if (process.state() == QProcess::Running && !process.waitForFinished(MostSilence))
        process.kill();
    process.waitForFinished();
    if (process.exitStatus() == QProcess::NormalExit)
        from.status = process.exitCode();
    return from;
}

/// Place of the step behind the end of the program, if the script expects that end there, else of
/// the next case.
Place placeBehind(const QString &script, const QList<Case> &cases, const Place &ended,
                  int &failures)
{
    const QList<Step> &steps = cases[ended.atCase].steps;
    if (ended.status != StepFailed) {
        for (int at = ended.atStep; at < qMin(ended.atStep + 2, int(steps.size())); ++at) {
            if (steps[at].verb == u"ends"_s && steps[at].rest == QString::number(ended.status)) {
                if (at + 1 < steps.size())
                    return {ended.atCase, at + 1};
                return {ended.atCase + 1, 0};
            }
        }
        std::fprintf(stderr, "%s:%d: %s\n  in        %s\n%s %d\n", qUtf8Printable(script),
                     steps[ended.atStep].line, qUtf8Printable(steps[ended.atStep].text),
                     qUtf8Printable(cases[ended.atCase].title),
                     ended.status < 0 ? "the program crashed or hung:"
                                      : "the program ended with status",
                     ended.status);
    }
    ++failures;
    return {ended.atCase + 1, 0};
}

/// Plays a whole script; true if nothing failed.
bool playScript(const QString &script)
{
    const QTemporaryDir folder;
    for (const char *variable : {"TMPDIR", "XDG_RUNTIME_DIR"})
        qputenv(variable,
                folder.path().toUtf8()); // a running program is no second copy of this one
    const QList<Case> cases = readScript(script);
    QElapsedTimer clock;
    clock.start();
    int failures = 0;
    for (Place at{0, 0}; at.atCase < cases.size();) {
        const Place ended = playOn(script, folder.path(), at);
        if (ended.atCase == cases.size()) {
            if (ended.status != 0) {
                ++failures;
                std::fprintf(stderr, "%s: ended with status %d behind the last case\n",
                             qUtf8Printable(script), ended.status);
            }
            break;
        }
        at = placeBehind(script, cases, ended, failures);
    }
    std::printf("%s: %d cases, %d failed, %.1f s\n", qUtf8Printable(script), int(cases.size()),
                failures, double(clock.elapsed()) / 1000);
    return failures == 0;
}

/// Leaves out what the offscreen platform says of each window.
void printMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!text.startsWith(u"This plugin does not support"_s))
        std::fprintf(stderr, "%s\n", qUtf8Printable(qFormatLogMessage(type, context, text)));
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2 || qstrcmp(argv[1], "--play") != 0) {
        const QCoreApplication application(argc, argv);
        bool good = argc > 1;
        for (const QString &script : application.arguments().sliced(1))
            good = playScript(script) && good;
        return good ? 0 : 1;
    }
    qInstallMessageHandler(printMessage);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // they take no keys from a program
    const Application application(argc, argv);
    const QStringList arguments = application.arguments().sliced(2);
    const QList<Case> cases = readScript(arguments.value(3));
    Stage stage(arguments.value(0));
    stage.stored = QFileInfo(arguments.value(3)).path() + u'/';
    const Player player(arguments.value(3), cases, stage, arguments.value(1).toInt(),
                        arguments.value(2).toInt());
    return Application::exec();
}
