// SPDX-License-Identifier: MIT
#include "LockFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace recorder
{

namespace
{

/// A folder, locked for as long as this lives if nobody else has it locked.
class LockedFolder
{
public:
    explicit LockedFolder(const std::string &path)
        : m_descriptor(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
        , m_isLocked(m_descriptor >= 0 && flock(m_descriptor, LOCK_EX | LOCK_NB) == 0)
    {
    }
    ~LockedFolder()
    {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }
    LockedFolder(const LockedFolder &) = delete;
    LockedFolder &operator=(const LockedFolder &) = delete;

    bool isLocked() const { return m_isLocked; }
    bool isOwn() const
    {
        const auto status = m_descriptor >= 0 ? statusOf(m_descriptor) : std::nullopt;
        return status && recorder::isOwn(*status);
    }

private:
    const int m_descriptor;
    const bool m_isLocked;
};

} // namespace

int openLockFile(const std::string &path)
{
    // A link could lead the superuser to any file, and a pipe would wait for its
    // other end.
    return open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC,
                S_IRUSR | S_IWUSR);
}

std::optional<struct stat> statusAt(const std::string &path)
{
    struct stat status = {};
    return lstat(path.c_str(), &status) == 0 ? std::make_optional(status) : std::nullopt;
}

std::optional<struct stat> statusOf(int descriptor)
{
    struct stat status = {};
    return fstat(descriptor, &status) == 0 ? std::make_optional(status) : std::nullopt;
}

bool isSameFile(const struct stat &a, const struct stat &b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

bool isOwn(const struct stat &status)
{
    return status.st_uid == geteuid();
}

bool isLockedBySomebody(const struct stat &file)
{
    std::ifstream locks("/proc/locks");
    if (!locks)
        return true;
    // "1: FLOCK  ADVISORY  WRITE 1234 fe:00:5678 0 EOF". The device before the inode
    // is not always the one that the file's status names (btrfs), so it is not
    // compared.
    const std::string inode = ':' + std::to_string(file.st_ino) + ' ';
    for (std::string line; std::getline(locks, line);) {
        if (line.find(" FLOCK ") != std::string::npos && line.find(inode) != std::string::npos)
            return true;
    }
    return false;
}

Removal removeUnlocked(const std::string &path, const struct stat &file)
{
    const LockedFolder folder(std::filesystem::path(path).parent_path().string());
    if (isLockedBySomebody(file))
        return Removal::Busy;
    if (!folder.isOwn())
        return Removal::NotOwnFolder;
    // Of several that find the same file, a late one must not remove what an early
    // one has made in its place.
    if (!folder.isLocked())
        return Removal::Busy;
    const auto current = statusAt(path);
    if (current && isSameFile(*current, file))
        unlink(path.c_str());
    return Removal::Done;
}

} // namespace recorder
