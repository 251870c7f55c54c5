// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace connrecord
{

/// Throws Failure if the history at `storePath`, or one of the files that are kept
/// beside it, is where a result is about to go: the file that this path leads to
/// by whatever names, or standard output if it is "-". Files of the history that
/// do not exist at the moment count too.
void checkIsNotOfHistory(const std::string &outputPath, const std::string &storePath);

} // namespace connrecord
