// SPDX-License-Identifier: MIT
#pragma once

namespace history
{

/// What recorders keep beside a store, behind its name.
constexpr const char *recorderLockSuffix = ".recorder";
constexpr const char *unwrittenSuffix = "-unwritten";
constexpr const char *secondUnwrittenSuffix = "-unwritten-2";

} // namespace history
