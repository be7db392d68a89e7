// SPDX-License-Identifier: MIT
// Guard against a second copy of the program on this machine, since two copies would keep two
// books of one draw.
#pragma once

/// Takes the machine's one place for a running copy and keeps it to the end of the process.
/// False while another copy holds it. A copy that was killed holds nothing.
bool becomeOnlyInstance();
