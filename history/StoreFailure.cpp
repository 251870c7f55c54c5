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
    return {Kind::Locked, historyAt(path) + " has been locked by another program for " +
                              std::to_string(lockTimeoutSeconds) +
                              " seconds; close that program or try again later."};
}

StoreFailure diskFull(const std::string &path)
{
    return {Kind::WriteFailed, historyAt(path) + " cannot be written because the disk is full; " +
                                   "nothing was changed, free some space and try again."};
}

StoreFailure writeFailed(const std::string &path, const std::string &reason)
{
    return {Kind::WriteFailed, historyAt(path) + " cannot be written (" + reason +
                                   "); nothing was changed, check the disk and the permissions " +
                                   "of the file and its folder."};
}

StoreFailure cannotOpenBecause(const std::string &path, const std::string &reason)
{
    return {Kind::CannotOpen, historyAt(path) + " cannot be opened (" + reason +
                                  "); check the disk and the permissions of the file and its " +
                                  "folder, or name another file."};
}

} // namespace

std::string historyAt(const std::string &path)
{
    return "The connection history \"" + path + "\"";
}

StoreFailure notAStore(const std::string &path, const std::string &what)
{
    return {Kind::NotAStore, "\"" + path + "\" is not a connection history but " + what +
                                 "; it was left as it is, move it away or name another file."};
}

StoreFailure damaged(const std::string &path, const std::string &reason)
{
    return {Kind::Damaged, historyAt(path) + " is damaged (" + reason +
                               "); it was left as it is, move it away or put a copy in its place."};
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
    return interrupted(path, "there is not enough memory");
}

StoreFailure interrupted(const std::string &path, const std::string &reason)
{
    return {Kind::CannotOpen, historyAt(path) + " could not be worked on (" + reason +
                                  "); nothing was changed, close other programs and try again."};
}

} // namespace history
