// SPDX-License-Identifier: MIT
#pragma once

#include "Failure.h"

#include <string>

namespace connrecord
{

/// Writes the sentence to standard error, as one of this program.
void warn(const std::string &sentence);

/// The same; returns what the program is to end with.
int complain(ExitCode code, const std::string &sentence);

/// Tells that there is not enough memory, and needs none itself.
int complainOfMemory();

/// What the program ends with where an exception may go no further: a sentence if
/// it is about memory, else as a bug does.
[[noreturn]] void endWithSentence();

} // namespace connrecord
