// SPDX-License-Identifier: MIT
// The window with the picture of the shortcut keys. It stays open beside the work.
#pragma once

#include <QDialog>

class ShowKey : public QDialog
{
    Q_OBJECT

public:
    /// Shows the window in the middle of the screen, or brings the one that is open to the front.
    /// It can go behind @p owner, the main window, and ends with it at the latest.
    static void open(QWidget *owner);

private:
    explicit ShowKey(QWidget *owner);
};
