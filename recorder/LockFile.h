// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>

namespace recorder
{

/// Opens a file to lock it, or makes it, whatever stands there: without waiting and
/// without following a link. Anything may have been opened, so it has to be looked
/// at before it is used. Returns the descriptor, or -1 with errno.
int openLockFile(const std::string &path);

/// What stands at the path, links not followed; nothing, with errno, if that is not
/// to be known.
std::optional<struct stat> statusAt(const std::string &path);
std::optional<struct stat> statusOf(int descriptor);
bool isSameFile(const struct stat &a, const struct stat &b);
bool isOwn(const struct stat &status);

/// Whether any process that can be seen from here holds the file's lock, which is
/// to be known of a file, too, that may not be opened; true if in doubt.
bool isLockedBySomebody(const struct stat &file);

enum class Removal { Done, NotOwnFolder, Busy };
/// Removes this file from a folder of one's own, unless something else stands there
/// by now. Busy: somebody holds its lock, or is about to remove it.
Removal removeUnlocked(const std::string &path, const struct stat &file);

} // namespace recorder
