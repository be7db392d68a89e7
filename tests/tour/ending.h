// SPDX-License-Identifier: MIT
// The closing of a draw in the tour. It ends the program from the middle of a dialog, and with it
// the process, so the tour has it done by a second process of its own.
#pragma once

#include <QStringList>

/// What came of a closing: how the process ended, and the words of its boxes.
struct Ending
{
    bool clean; ///< ended by itself, with status 0
    QStringList boxes;
};

/// Has another process of this program close the draw in the program's folder. @p pictures is as
/// for Player.
Ending closeDraw(const QString &pictures, const QString &name);

/// That other process: starts the program in @p folder, opens the settings, presses " ลบข้อมูลงวดนี้"
/// and answers OK. Prints the words of the boxes. Comes back, with 1, only if the program did not
/// end.
int closeDrawHere(const QString &folder, const QString &pictures, const QString &name);
