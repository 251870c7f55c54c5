// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace connrecord
{

/// Tells the service manager that has started this program, if one has, how it is.
/// Without one ($NOTIFY_SOCKET), or if it does not listen, nothing happens.

/// The program does its work from now on.
void tellReady();
/// One sentence for people.
void tellStatus(const std::string &sentence);
/// It is about to end.
void tellStopping();

} // namespace connrecord
