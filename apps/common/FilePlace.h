// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>

namespace common
{

/// Where a file of this path is or would be made: an absolute path that no
/// symbolic link changes any more, one that leads to no file included. The links
/// of a process to what it has open stay, for they are no paths.
std::filesystem::path placeOf(const std::filesystem::path &path);

/// Whether both paths lead to one file, by whatever names, or would if it existed.
bool leadToSameFile(const std::filesystem::path &path, const std::filesystem::path &other);

/// The open file of this process that a path such as /dev/stdout stands for;
/// nothing for every other path.
std::optional<int> descriptorAt(const std::filesystem::path &path);

} // namespace common
