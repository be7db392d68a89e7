// SPDX-License-Identifier: MIT
// The application object, which sets up what all windows share.
#pragma once

#include <QApplication>

class Application : public QApplication
{
    Q_OBJECT

public:
    /// Sets the program's name, style, font and icon, and installs the functions that show boxes and
    /// the save dialog.
    Application(int &argc, char **argv);
};
