// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"

#include <string>

namespace connrecord
{

/// Writes a copy of the history into a new file, whole and of one moment, whoever works
/// on the history meanwhile. Throws Failure, also if the file is there already.
void backUp(const CommonRequest &common, const std::string &copyPath);

/// Tells whether the history is sound; throws Failure if it is not.
void checkHistory(const CommonRequest &common);

} // namespace connrecord
