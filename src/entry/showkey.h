// SPDX-License-Identifier: MIT
// The modeless window with the picture of the shortcut keys.
#pragma once

#include <QDialog>

class ShowKey : public QDialog
{
    Q_OBJECT

public:
    /// Opens the window in the centre of the screen, or raises it if it is open. @p owner is the
    /// main window, which can cover it; the window is deleted when its owner is.
    static void open(QWidget *owner);

private:
    explicit ShowKey(QWidget *owner);
};
