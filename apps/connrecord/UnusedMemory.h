// SPDX-License-Identifier: MIT
#pragma once

namespace connrecord
{

/// Gives back the memory that only the start of the program has needed: what loading the
/// libraries has read of them, and what is free in the heap. What is needed of it again is
/// read again, from the system's cache of files. For who goes on running for long and
/// does little.
void giveBackStartupMemory();

} // namespace connrecord
