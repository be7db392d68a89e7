// SPDX-License-Identifier: MIT
// A script as text: cases of steps, one step a line. CONTRIBUTING.md says how to write one.
#pragma once

#include <QStringList>

/// One step. Keys are a step each, so that what a key opens is there before the next one.
struct Step
{
    int line;
    QString verb;
    QString rest;      ///< what follows the verb
    QStringList words; ///< the same in words, which quotes keep together
    QString text;      ///< the line as it stands in the script, for messages
};

struct Case
{
    QString title;
    QList<Step> steps; ///< those in front of the first case begin each
};

/// Reads a script; qFatal() with its name and line if it is wrong.
QList<Case> readScript(const QString &path);

/// The words of @p text without their quotes; \n and \" in quotes are a new line and a quote.
QStringList wordsOf(const QString &text);

/// The rows of @p text, which are parted by " / "; "none" is no row.
QStringList rowsOf(const QString &text);
