// SPDX-License-Identifier: MIT
// Prevents a second copy of the program on the same machine, since two copies would keep two books
// of one draw.
#pragma once

/// Takes the lock that only one copy can hold, and keeps it until the process ends, even if it is
/// killed. Returns false while another copy has it. Returns true without a lock if it cannot be
/// created, for example on a full disk: the exclusive lock on the Ledger still protects the book.
bool becomeOnlyInstance();

/// Returns true if becomeOnlyInstance() has taken the lock.
bool hasInstanceLock();

/// Releases the lock before the process ends.
void leaveOnlyInstance();

/// Shows the box that refuses a second copy.
void refuseSecondCopy();
