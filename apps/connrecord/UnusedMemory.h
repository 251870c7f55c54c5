// SPDX-License-Identifier: MIT
#pragma once

namespace connrecord
{

/// Gives back the memory that may have been needed only once: what has been read of the
/// program and its libraries, and what is free in the heap. What is needed of it again is
/// read again, from the system's cache of files. For who goes on running for long and
/// does little.
void giveBackUnusedMemory();

} // namespace connrecord
