// SPDX-License-Identifier: MIT
// The application object: hands out events, and ends the program with a report when a handler
// lets a run-time error rise.
#pragma once

#include <QApplication>

class Application : public QApplication
{
    Q_OBJECT

public:
    /// Sets the program's name, style and type, and real windows as the message boxes.
    Application(int &argc, char **argv);

    /// Catches run-time errors where events are handed out, nested dialogs included, since none
    /// may cross the toolkit.
    bool notify(QObject *receiver, QEvent *event) override;
};
