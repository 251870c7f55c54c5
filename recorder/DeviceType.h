// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace recorder
{

/// The device type that the system's folder of network interfaces (/sys/class/net)
/// has for the one of this name; empty if it has none, or if another one of another
/// index has that name by now.
std::string deviceTypeIn(const std::string &folder, int index, const std::string &name);

} // namespace recorder
