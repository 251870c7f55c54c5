// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace history
{

/// Which file a path leads to at the moment. The time of its birth tells it from
/// an earlier one, now deleted, whose inode it has taken over.
struct FileIdentity {
    std::uint64_t device;
    std::uint64_t inode;
    std::int64_t bornSeconds;
    std::uint32_t bornNanoseconds;

    bool operator==(const FileIdentity &other) const;
};

/// The file at `path`, or nothing if there is none. Throws StoreFailure if that
/// cannot be told.
std::optional<FileIdentity> fileAt(const std::string &path);

/// The path without symbolic links, beside which SQLite keeps its own files.
std::string resolvedPath(const std::string &path);

/// Makes an empty file of mode 0600 at `path`, and the folders that are missing
/// on the way to it with mode 0700, whatever the umask. A file that another
/// process has made meanwhile is as good. Throws StoreFailure.
void createPrivateFile(const std::string &path);

/// When a file was changed.
struct FileChange {
    std::int64_t inode;
    std::int64_t writtenNs; ///< its contents, in nanoseconds since 1970-01-01 00:00 UTC
    std::int64_t changedNs; ///< its contents, name or permissions
    std::int64_t bornNs;    ///< 0 if the disk does not keep that
};

/// The last change of the file at `path`, or nothing if there is none. Throws
/// StoreFailure if that cannot be told.
std::optional<FileChange> changeOf(const std::string &path);

/// Where SQLite keeps the log of the file at `path`, a path without links.
std::string logOf(const std::string &path);

/// Takes the access of others from the file at `path`, a path without links, and from
/// what SQLite keeps beside it, where they are this user's own.
void makePrivate(const std::string &path);

/// Whether the disk that the file lies on can have a log, whose index is memory shared
/// through a file. Processes of other machines, which may have a network's disk open, do
/// not see that memory; and where a block is smaller than a page of it, SQLite reserves
/// a part of each page only, so that a full disk ends the program when it uses the rest.
bool canHaveLog(const std::string &path);

/// Whether SQLite's log beside this file holds records that are not in it yet.
bool hasLog(const std::string &path);

/// The errno that keeps this process from writing to the file or, for the log
/// beside it, to its folder; 0 if nothing does.
int writeObstacle(const std::string &path);

/// What an existing file may become.
enum class FileContent {
    Nothing, ///< an empty file, or an SQLite file in which nothing has been made yet
    Store,   ///< a store of this version or an older one
};

/// Looks at the file at `path` without letting SQLite open it as a database, for
/// that could already write to it or to the log beside it. Throws StoreFailure
/// for a file that is no store or a newer one.
FileContent inspectFile(const std::string &path);

} // namespace history
