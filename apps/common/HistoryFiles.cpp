// SPDX-License-Identifier: MIT
#include "HistoryFiles.h"

#include "FilePlace.h"
#include "history/FilesBesideStore.h"

#include <algorithm>
#include <array>

namespace common
{

namespace
{

/// Behind the history's name: itself, what SQLite keeps and what recorders do.
constexpr std::array<const char *, 7> suffixes = {"",
                                                  "-wal",
                                                  "-shm",
                                                  "-journal",
                                                  history::recorderLockSuffix,
                                                  history::unwrittenSuffix,
                                                  history::secondUnwrittenSuffix};

bool isBesideHistory(const std::filesystem::path &path, const std::filesystem::path &store)
{
    return std::any_of(suffixes.begin(), suffixes.end(), [&](const char *suffix) {
        std::filesystem::path file = store;
        return leadToSameFile(path, file += suffix);
    });
}

} // namespace

bool belongsToHistory(const std::filesystem::path &path, const std::filesystem::path &store)
{
    // SQLite puts its files beside the one that a link leads to, others may not.
    return isBesideHistory(path, store) || isBesideHistory(path, placeOf(store));
}

} // namespace common
