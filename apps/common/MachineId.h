// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace common
{

/// A number of this machine that stays the same and is no other's, 32 hexadecimal digits.
/// It is made of the system's own, which it does not give away, and is another one in other
/// programs. Throws std::system_error if the system has none.
std::string machineId();

} // namespace common
