// SPDX-License-Identifier: MIT
// The application object. Ends the program with a report when a handler does not catch a
// run-time error.
#pragma once

#include <QApplication>

class Application : public QApplication
{
    Q_OBJECT

public:
    /// Sets the program's name, style, font and icon, and installs the functions that show boxes and
    /// the save dialog.
    Application(int &argc, char **argv);

    /// Delivers an event. Catches run-time errors here, in nested event loops too, since no
    /// exception may pass through Qt.
    bool notify(QObject *receiver, QEvent *event) override;
};
