// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace common
{

/// Whether this path leads, by whatever names, to the history at `store` or to one of the
/// files that are kept beside it. Those that do not exist at the moment count too.
bool belongsToHistory(const std::filesystem::path &path, const std::filesystem::path &store);

} // namespace common
