// SPDX-License-Identifier: MIT
// Saving under a name that the user picks: who asks for it, and how bytes get onto the disk.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

/// What a save dialog is asked for.
struct SaveRequest
{
    QString title;
    QString extension; ///< of the files that it lists, with its dot
    QString preset;    ///< file name to begin with, without an ending
};

/// Asks for a file name; gives it with its folder and as typed, nothing added, or "" on Cancel.
using SaveDialog = std::function<QString(const SaveRequest &)>;

/// Sets who asks and gives back who did so before. The program sets a real dialog.
SaveDialog setSaveDialog(SaveDialog dialog);

/// Asks by the dialog that was set.
QString askForFileName(const SaveRequest &request);

/// Writes a file as a whole or not at all: on failure false, and what stood there stays.
bool saveFile(const QString &path, const QByteArray &bytes);
