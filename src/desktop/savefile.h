// SPDX-License-Identifier: MIT
// Saving a file under a name that the user chooses.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

/// Parameters of a save dialog.
struct SaveRequest
{
    QString title;
    QString extension; ///< of the files that it lists, with the dot
    QString preset;    ///< initial file name, without an extension
};

/// Asks for a file name. Returns the full path as the user typed it, or "" on Cancel.
using SaveDialog = std::function<QString(const SaveRequest &)>;

/// Sets what asks for a file name and returns the previous function. Application sets
/// showSaveDialog().
SaveDialog setSaveDialog(SaveDialog dialog);

/// Asks for a file name with the function set by setSaveDialog().
QString askForFileName(const SaveRequest &request);

/// Writes a file completely or not at all. Returns false on failure; an existing file is then
/// unchanged.
bool saveFile(const QString &path, const QByteArray &bytes);
