// SPDX-License-Identifier: MIT
// Plays scripts. Each is played in a process of its own, and in another one after each failure and
// each end of the program: a dialog that is open cannot be left from outside, and the end is real.
#include "desktop/application.h"
#include "script/player.h"

#include <cstdio>

namespace {

constexpr int StepFailed = 70; ///< exit status; the program itself ends with 0 or 1

#if defined(Q_OS_WIN) || defined(__SANITIZE_ADDRESS__)
constexpr int MostWait = 30'000; // milliseconds until a step has failed
#else
constexpr int MostWait = 10'000;
#endif

void printFailure(const Case &failed, int step, const QString &wrong)
{
    const Step &at = failed.steps[qMin(step, int(failed.steps.size()) - 1)];
    std::fprintf(stderr, "%s: %s\n  in        %s\n%s\n", qUtf8Printable(at.place),
                 qUtf8Printable(at.text), qUtf8Printable(failed.title), qUtf8Printable(wrong));
    std::fflush(stderr);
}

/// Plays each step in an event of its own, so that steps go on in a dialog that the step before has
/// opened and waits for.
class Player : public QObject
{
public:
    /// Plays from a step on. In the middle of a case it goes on in the folder as it is.
    Player(const QList<Case> &cases, int firstCase, int firstStep)
        : m_cases(cases), m_case(firstCase), m_step(firstStep)
    {
        comparisons = firstStep; // the end of the program has been one
        if (firstStep == 0)
            Stage::reset();
        m_sinceStep.start();
        QTimer::singleShot(0, this, &Player::play);
    }

private:
    void play()
    {
        if (m_case == m_cases.size())
            return QApplication::exit();
        QTimer::singleShot(m_wrong.isEmpty() ? 0 : 1, this, &Player::play);
        const QWidget *modal = QApplication::activeModalWidget();
        if (m_running && modal && !modal->property("known").toBool())
            next(); // the step waits for the window that it has opened
        if (m_running)
            m_wrong = u"the step has not come back"_s;
        else if (m_step < m_cases[m_case].steps.size())
            runStep(m_cases[m_case].steps[m_step]);
        else
            endCase();
        if (m_wrong.isEmpty() || !m_sinceStep.hasExpired(MostWait))
            return;
        printFailure(m_cases[m_case], m_step, m_wrong);
        std::_Exit(StepFailed);
    }

    void runStep(const Step &step)
    {
        reportPlace();
        if (QWidget *modal = QApplication::activeModalWidget())
            modal->setProperty("known", true);
        m_running = true;
        ++m_depth;
        try {
            if (Stage::box() && workOf(step.verb) == Work::Acts)
                throw NotYet{u"no step has read the box: "_s + Stage::box()->text()};
            run(step);
            if (m_running)
                next();
        } catch (const NotYet &notYet) {
            m_running = false;
            m_wrong = notYet.reason;
        }
        --m_depth;
    }

    void endCase()
    {
        m_wrong.clear();
        for (const QWidget *open :
             {QApplication::activeModalWidget(), QApplication::activePopupWidget()})
            if (open)
                m_wrong =
                    u"left open: "_s + (Stage::box() ? Stage::box()->text() : open->objectName());
        if (m_depth > 0 && m_wrong.isEmpty())
            m_wrong = u"the step has not come back"_s;
        if (comparisons == 0)
            m_wrong = u"the case has compared nothing"_s;
        if (!m_wrong.isEmpty())
            return;
        comparisons = 0;
        ++m_case;
        m_step = -1;
        Stage::reset();
        next();
        reportPlace();
    }

    void next()
    {
        ++m_step;
        m_running = false;
        m_wrong.clear();
        m_sinceStep.start();
    }

    /// For the process that has started this one.
    void reportPlace() const
    {
        std::printf("@ %d %d\n", m_case, m_step);
        std::fflush(stdout);
    }

    const QList<Case> m_cases;
    int m_case;
    int m_step;
    int m_depth = 0;        ///< steps that have not come back
    bool m_running = false; ///< true while the last of them has opened no window
    QString m_wrong;        ///< why the step cannot be done yet
    QElapsedTimer m_sinceStep;
};

/// Plays a whole script. Returns true if nothing failed.
bool playScript(const QString &script)
{
    const QTemporaryDir folder;
    for (const char *variable : {"TMPDIR", "XDG_RUNTIME_DIR"}) // so that this is no second copy
        qputenv(variable, folder.path().toUtf8());
    const QList<Case> cases = readScript(script);
    int failures = 0;
    int atCase = 0;
    int atStep = 0;
    while (atCase < cases.size()) {
        QProcess player;
        player.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        player.start(
            QCoreApplication::applicationFilePath(),
            {u"--play"_s, folder.path(), QString::number(atCase), QString::number(atStep), script});
        while (player.waitForReadyRead(60'000)) {
            while (player.canReadLine())
                std::sscanf(player.readLine(), "@ %d %d", &atCase, &atStep);
        }
        if (!player.waitForFinished(5'000))
            player.kill();
        player.waitForFinished();
        const int status = player.exitStatus() == QProcess::NormalExit ? player.exitCode() : -1;
        if (atCase == cases.size())
            break;
        const QList<Step> &steps = cases[atCase].steps;
        const qsizetype ends = steps[atStep].verb == u"ends"_s ? atStep : atStep + 1;
        if (ends < steps.size() && steps[ends].verb == u"ends"_s
            && steps[ends].rest == QString::number(status)) {
            atStep = int(ends) + 1;
            continue;
        }
        if (status != StepFailed)
            printFailure(cases[atCase], atStep,
                         u"the program ended with %1, or crashed if -1"_s.arg(status));
        ++failures;
        ++atCase;
        atStep = 0;
    }
    std::printf("%s: %d cases, %d failed\n", qUtf8Printable(script), int(cases.size()), failures);
    return failures == 0;
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
    QLoggingCategory::setFilterRules(u"default.warning=false"_s); // the offscreen platform's
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // they take no keys from a program
    const Application application(argc, argv);
    const QStringList arguments = application.arguments().sliced(2);
    Stage::open(arguments.value(0));
    const Player player(readScript(arguments.value(3)), arguments.value(1).toInt(),
                        arguments.value(2).toInt());
    const int status = Application::exec();
    Stage::end();
    return status;
}
