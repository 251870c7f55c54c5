// SPDX-License-Identifier: MIT
#include "HistoryFiles.h"

#include "Failure.h"
#include "FilePlace.h"
#include "Output.h"
#include "history/FilesBesideStore.h"

#include <algorithm>
#include <array>

namespace connrecord
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

bool isOfHistory(const std::filesystem::path &path, const std::filesystem::path &store)
{
    return std::any_of(suffixes.begin(), suffixes.end(), [&](const char *suffix) {
        std::filesystem::path file = store;
        return leadToSameFile(path, file += suffix);
    });
}

} // namespace

void checkIsNotOfHistory(const std::string &outputPath, const std::string &storePath)
{
    const std::filesystem::path path =
        outputPath == standardOutputPath ? "/dev/stdout" : outputPath;
    // SQLite puts its files beside the one that a link leads to, others may not.
    if (isOfHistory(path, storePath) || isOfHistory(path, placeOf(storePath)))
        throw Failure(ExitCode::Output, outputName(outputPath) +
                                            " cannot be written: it belongs to the history \"" +
                                            storePath + "\". Give another file.");
}

} // namespace connrecord
