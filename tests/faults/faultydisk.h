// SPDX-License-Identifier: MIT
// A disk that fails on demand. It stands in for the two calls through which the engine writes, so
// it needs no rights and no disk of its own.
#pragma once

#include <QString>

/// What becomes of a folder or of all that is written from now on.
enum class Fault {
    None,
    Full,           ///< no file can grow; what is there can be overwritten
    SizeLimit,      ///< the kernel lets no file grow beyond 100,001 bytes, and writes up to there
    NoPromise,      ///< writing works, but bringing to the disk fails
    ReadOnlyFolder, ///< files cannot be made or removed
};

/// Has the fault befall this process, or @p folder.
void strike(Fault fault, const QString &folder);

/// Keeps in @p mirror each file of @p folder as it was when it was last brought to the disk for
/// certain: what a power cut would leave if nothing else had got there. The files that are there
/// now count as safe. Empty texts end that.
void mirrorSafeBytes(const QString &folder, const QString &mirror);
