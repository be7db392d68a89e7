// SPDX-License-Identifier: MIT
// Compound files, the container format of .xls sheets: a small file system of 512-byte sectors
// within a file.
#pragma once

#include <QByteArray>
#include <QString>

/// Returns a compound file with one stream @p name of at most 31 characters. Content below 4096
/// bytes is padded with zeros, since smaller streams would need another kind of sector.
QByteArray compoundFile(const QString &name, QByteArray content);
