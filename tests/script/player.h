// SPDX-License-Identifier: MIT
// Plays cases, each step in an event of its own, so that steps go on in a dialog that the step
// before has opened and waits for.
#pragma once

#include "script/script.h"
#include "script/stage.h"

#include <QElapsedTimer>
#include <QObject>

/// Exit status of a process in which a step has failed; the program itself ends with 0 or 1.
inline constexpr int StepFailed = 70;

class Player : public QObject
{
    Q_OBJECT

public:
    /// Plays from step @p firstStep of case @p firstCase on. In the middle of a case it goes on in
    /// the folder as it is.
    Player(QString path, const QList<Case> &cases, Stage &stage, int firstCase, int firstStep);

    /// True if all cases have been played.
    bool isDone() const { return m_case == m_cases.size(); }

protected:
    void timerEvent(QTimerEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    /// A step whose function has not come back.
    struct Running
    {
        int shown;         ///< windows shown before it
        bool starts;       ///< not the step itself, but the program for it
        bool done = false; ///< it waits for a window that it has opened
    };

    const Step &step() const { return m_cases[m_case].steps[m_step]; }
    void arm(int milliseconds);
    void play();
    void runStep();
    void endCase();
    void next();
    void beginCase();
    bool showsWindowSince(int shown) const;
    void tellPlace() const;
    void wait(const QString &wrong);
    [[noreturn]] void fail(const QString &wrong) const;

    QString m_path;
    const QList<Case> &m_cases;
    Stage &m_stage;
    int m_case;
    int m_step;
    bool m_hasChecked = false;
    QList<Running *> m_running; ///< the innermost last
    int m_shown = 0;            ///< dialogs, boxes and lists that have come up
    QElapsedTimer m_sinceStep;
    int m_timer = 0;
};
