// SPDX-License-Identifier: MIT
#include "script/player.h"

#include "script/controls.h"
#include "script/verbs.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimerEvent>

#include <cstdio>
#include <cstdlib>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *ShownProperty = "shownAs"; ///< number of a window, in the order they came up

#if defined(Q_OS_WIN) || defined(__SANITIZE_ADDRESS__)
constexpr int MostWait = 30'000; // milliseconds
#else
constexpr int MostWait = 10'000;
#endif

QWidgetList openDialogs()
{
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget *window) {
        return !window->isVisible() || !window->property(ShownProperty).isValid();
    });
    return windows;
}

} // namespace

Player::Player(QString path, const QList<Case> &cases, Stage &stage, int firstCase, int firstStep)
    : m_path(std::move(path)), m_cases(cases), m_stage(stage), m_case(firstCase), m_step(firstStep)
{
    qApp->installEventFilter(this);
    if (m_step == 0) {
        beginCase();
    } else {
        m_hasChecked = true; // at least the program's end
        for (const Step &each : m_cases[m_case].steps.first(m_step)) {
            if (each.verb == u"clock"_s || each.verb == u"region"_s)
                findVerb(each.verb)->run(m_stage, each);
        }
    }
    m_sinceStep.start();
    arm(0);
}

bool Player::eventFilter(QObject *object, QEvent *event)
{
    auto *window = qobject_cast<QWidget *>(object);
    if (event->type() == QEvent::Show && window && window->isWindow()
        && (window->isModal() || window->windowType() == Qt::Popup))
        window->setProperty(ShownProperty, ++m_shown);
    return QObject::eventFilter(object, event);
}

void Player::arm(int milliseconds)
{
    if (m_timer != 0)
        killTimer(m_timer);
    m_timer = startTimer(milliseconds, Qt::PreciseTimer);
}

/// The next event is on its way before the step is played. It has a timer of its own, since a timer
/// does not fire while it is being served.
void Player::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer || isDone())
        return;
    arm(1);
    play();
}

void Player::play()
{
    if (!m_running.isEmpty()) {
        Running &outer = *m_running.last();
        if (!showsWindowSince(outer.shown))
            return wait(u"the step has not come back"_s);
        if (!std::exchange(outer.done, true) && !outer.starts)
            next();
    }
    if (m_step < m_cases[m_case].steps.size())
        runStep();
    else
        endCase();
}

bool Player::showsWindowSince(int shown) const
{
    const QWidgetList open = openDialogs();
    return std::any_of(open.begin(), open.end(), [&](const QWidget *window) {
        return window->property(ShownProperty).toInt() > shown;
    });
}

void Player::runStep()
{
    tellPlace();
    const bool starts = findVerb(step().verb)->is(InProgram) && !m_stage.started;
    const Verb &verb = *findVerb(starts ? u"start"_s : step().verb);
    if (const QMessageBox *box = Stage::box(); box && verb.is(Acts))
        fail(u"no step has read the box: "_s + box->text());
    Running running{m_shown, starts};
    m_running += &running;
    QString wrong;
    try {
        verb.run(m_stage, step());
    } catch (const NotYet &notYet) {
        wrong = notYet.reason;
    }
    m_running.removeLast();
    if (!running.done && !wrong.isEmpty())
        wait(wrong);
    if (running.done || starts || !wrong.isEmpty())
        return;
    m_hasChecked = m_hasChecked || verb.is(Checks);
    next();
    arm(0);
}

/// Reports to the process that waits for this one.
void Player::tellPlace() const
{
    std::printf("@ %d %d\n", m_case, m_step);
    std::fflush(stdout);
}

void Player::next()
{
    ++m_step;
    m_sinceStep.start();
}

void Player::endCase()
{
    if (const QMessageBox *box = Stage::box())
        fail(u"no step has read the box: "_s + box->text());
    if (const QWidgetList open = openDialogs(); !open.isEmpty())
        fail(u"a window is open at the end of the case: "_s + open.first()->objectName());
    if (!m_running.isEmpty())
        return;
    if (!m_hasChecked)
        fail(u"the case has checked nothing"_s);
    ++m_case;
    m_step = 0;
    m_hasChecked = false;
    beginCase(); // also behind the last one, which leaves no file open
    if (!isDone())
        return;
    tellPlace();
    QApplication::exit(); // quit() would ask the windows
}

void Player::beginCase()
{
    m_stage.reset();
    m_sinceStep.start();
}

void Player::wait(const QString &wrong)
{
    if (m_sinceStep.hasExpired(MostWait))
        fail(wrong);
}

void Player::fail(const QString &wrong) const
{
    const auto &steps = m_cases[m_case].steps;
    const Step &failed = steps[std::min<qsizetype>(m_step, steps.size() - 1)];
    std::fprintf(stderr, "%s:%d: %s\n  in        %s\n%s\n", qUtf8Printable(m_path), failed.line,
                 qUtf8Printable(failed.text), qUtf8Printable(m_cases[m_case].title),
                 qUtf8Printable(wrong));
    std::fflush(stderr);
    std::_Exit(StepFailed);
}
