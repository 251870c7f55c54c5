// SPDX-License-Identifier: MIT
#pragma once

namespace refdialer
{

/// The longest of all shortest connections that can be chosen, an hour.
constexpr int longestShortest = 3600;

/// How many seconds a connection must last for the window to list it; 0 at first.
int shortestListed();

/// False if the choice cannot be written.
bool storeShortestListed(int seconds);

} // namespace refdialer
