// SPDX-License-Identifier: MIT
#include "StoreFailure.h"

#include <sqlite3.h>

#include <cerrno>
#include <system_error>

namespace history
{

namespace
{

using Kind = StoreError::Kind;

std::string systemReason(int errorNumber)
{
    return std::generic_category().message(errorNumber);
}

bool isLock(int code)
{
    return code == SQLITE_BUSY || code == SQLITE_LOCKED || code == SQLITE_PROTOCOL;
}

/// The disk or the permissions are to blame, not the contents.
bool isSurroundings(int code)
{
    switch (code) {
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_READONLY:
    case SQLITE_IOERR:
    case SQLITE_FULL:
    case SQLITE_INTERRUPT:
        return true;
    default:
        return false;
    }
}

bool isFullDisk(int code, int systemError)
{
    return code == SQLITE_FULL || systemError == ENOSPC || systemError == EDQUOT;
}

StoreFailure locked(const std::string &path)
{
    return {Kind::Locked,
            Sentence{translatable("history", "The connection history \"%1\" has been locked by "
                                             "another program for %2 seconds; close that program "
                                             "or try again later."),
                     {path, std::to_string(lockTimeoutSeconds)}}};
}

StoreFailure diskFull(const std::string &path)
{
    return {Kind::WriteFailed,
            Sentence{translatable("history", "The connection history \"%1\" cannot be written "
                                             "because the disk is full; nothing was changed, free "
                                             "some space and try again."),
                     {path}}};
}

StoreFailure writeFailed(const std::string &path, const std::string &reason)
{
    return {Kind::WriteFailed,
            Sentence{translatable("history", "The connection history \"%1\" cannot be written "
                                             "(%2); nothing was changed, check the disk and the "
                                             "permissions of the file and its folder."),
                     {path, reason}}};
}

StoreFailure cannotOpenBecause(const std::string &path, const std::string &reason)
{
    return {Kind::CannotOpen,
            Sentence{translatable("history", "The connection history \"%1\" cannot be opened (%2); "
                                             "check the disk and the permissions of the file and "
                                             "its folder, or name another file."),
                     {path, reason}}};
}

} // namespace

std::string historyAt(const std::string &path)
{
    return "The connection history \"" + path + "\"";
}

StoreFailure notAStore(const std::string &path, Translatable text)
{
    return {Kind::NotAStore, Sentence{text, {path}}};
}

StoreFailure anotherDatabase(const std::string &path)
{
    return notAStore(path, translatable("history", "\"%1\" is not a connection history but a "
                                                   "database of another program; it was left as "
                                                   "it is, move it away or name another file."));
}

StoreFailure damaged(const std::string &path, const Part &reason)
{
    return {Kind::Damaged,
            Sentence{translatable("history", "The connection history \"%1\" is damaged (%2); it "
                                             "was left as it is, move it away or put a copy in its "
                                             "place."),
                     {path, reason}}};
}

StoreFailure cannotOpen(const std::string &path, int errorNumber)
{
    if (isFullDisk(SQLITE_OK, errorNumber))
        return diskFull(path);
    return cannotOpenBecause(path, systemReason(errorNumber));
}

StoreFailure sqliteFailure(const std::string &path, Access access, int code, int systemError,
                           const std::string &reason)
{
    const int primaryCode = code & 0xff;
    if (isLock(primaryCode))
        return locked(path);
    if (primaryCode == SQLITE_NOMEM)
        return outOfMemory(path);
    if (!isSurroundings(primaryCode))
        return damaged(path, reason);
    if (isFullDisk(primaryCode, systemError))
        return diskFull(path);
    const std::string cause = systemError != 0 ? systemReason(systemError) : reason;
    return access == Access::Writing ? writeFailed(path, cause) : cannotOpenBecause(path, cause);
}

StoreFailure outOfMemory(const std::string &path)
{
    return {Kind::CannotOpen,
            Sentence{translatable("history", "The connection history \"%1\" could not be worked on "
                                             "(there is not enough memory); nothing was changed, "
                                             "close other programs and try again."),
                     {path}}};
}

StoreFailure interrupted(const std::string &path, const std::string &reason)
{
    return {Kind::CannotOpen,
            Sentence{translatable("history", "The connection history \"%1\" could not be worked on "
                                             "(%2); nothing was changed, close other programs and "
                                             "try again."),
                     {path, reason}}};
}

} // namespace history
