// SPDX-License-Identifier: MIT
// Guard against a second copy of the program on this machine, since two copies would keep two
// books of one draw.
#pragma once

/// Takes the machine's one place for a running copy and keeps it to the end of the process.
/// False while another copy holds it; a copy that was killed holds nothing. Where the desktop
/// cannot tell, on a full disk say, true: the lock on the Ledger keeps the book from a second copy
/// all the same.
bool becomeOnlyInstance();

/// Gives the place up ahead of the end of the process, so that another may have it.
void leaveOnlyInstance();
