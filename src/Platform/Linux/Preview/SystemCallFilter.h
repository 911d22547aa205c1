// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

/// From now on the kernel knows only the system calls, for this thread and those that it starts,
/// that a program needs to work on what it has: memory, threads, reading files and writing to what
/// is open. It makes no process, no socket and no file, sends no signal to others and changes
/// nothing on the disk; all other calls fail as on a kernel without them. The process must have
/// given up gaining rights. False when this kernel has no filters, or this machine's calls are not
/// listed.
bool keepToHarmlessSystemCalls();

} // namespace tessera
