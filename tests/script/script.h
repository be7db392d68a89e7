// SPDX-License-Identifier: MIT
// A script as text: cases of steps, one step a line. CONTRIBUTING.md says how to write one.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// One step. What a person does key by key is a step for each key, so that what a key opens is
/// there before the next one.
struct Step
{
    int line;
    QString verb;
    QString rest; ///< all that follows the verb
    QString text; ///< the line as it stands in the script, for messages
};

struct Case
{
    QString title;
    QList<Step> steps; ///< those before the first case are in front of each
};

/// Reads a script; qFatal() with its name and line if it is wrong.
QList<Case> readScript(const QString &path);

/// The words of @p text, which quotes keep together; \n and \" in quotes are a new line and a quote.
QStringList wordsOf(const QString &text);

/// The rows of @p text, which are parted by " / ".
QStringList rowsOf(const QString &text);
