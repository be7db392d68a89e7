// SPDX-License-Identifier: MIT
// What tests without Qt Test compare with.
#pragma once

#include <QStringList>

/// Ends the process at the first row that differs, so that a fuzzer keeps its input.
inline void same(const QString &what, const QStringList &actual, const QStringList &expected)
{
    for (qsizetype at = 0; at < qMax(actual.size(), expected.size()); ++at) {
        const QString found = actual.value(at, QStringLiteral("(no row)"));
        const QString due = expected.value(at, QStringLiteral("(no row)"));
        if (found != due)
            qFatal("%s, row %d\nexpected %s\nactual   %s", qPrintable(what), int(at + 1),
                   qPrintable(due), qPrintable(found));
    }
}
