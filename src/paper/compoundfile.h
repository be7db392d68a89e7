// SPDX-License-Identifier: MIT
// The container that .xls sheets travel in: a file with a table of sectors of its own, like a
// small disk.
#pragma once

#include <QByteArray>
#include <QString>

/// A container with one stream, @p name of at most 31 letters, that holds @p content. Content
/// below 4096 bytes is filled up with zeros: what is smaller would be kept another way.
QByteArray compoundFile(const QString &name, QByteArray content);
