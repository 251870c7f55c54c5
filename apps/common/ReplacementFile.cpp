// SPDX-License-Identifier: MIT
#include "ReplacementFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <system_error>

namespace common
{

namespace
{

void check(bool hasSucceeded)
{
    if (!hasSucceeded)
        throw std::system_error(errno, std::generic_category());
}

} // namespace

ReplacementFile::ReplacementFile(const std::filesystem::path &place, Audience audience)
    : m_place(place)
    , m_audience(audience)
    , m_temporaryPath(place.parent_path() / ".connrecord-XXXXXX")
{
    // Its folder would let it be replaced although the user has protected it.
    check(access(m_place.c_str(), W_OK) == 0 || errno == ENOENT);
    m_descriptor = mkostemp(m_temporaryPath.data(), O_CLOEXEC);
    check(m_descriptor >= 0);
}

ReplacementFile::~ReplacementFile()
{
    if (!m_temporaryPath.empty())
        unlink(m_temporaryPath.c_str());
    close(m_descriptor);
}

void ReplacementFile::write(std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(m_descriptor, bytes.data(), bytes.size());
        check(written >= 0 || errno == EINTR);
        bytes.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
    }
}

void ReplacementFile::putInPlace()
{
    setPermissions();
    check(fsync(m_descriptor) == 0);
    check(rename(m_temporaryPath.c_str(), m_place.c_str()) == 0);
    m_temporaryPath.clear();
}

void ReplacementFile::putInFreePlace()
{
    check(fsync(m_descriptor) == 0);
    // Neither replaces a file that has come meanwhile; disks without links rename.
    check(link(m_temporaryPath.c_str(), m_place.c_str()) == 0 ||
          (errno == EPERM && renameat2(AT_FDCWD, m_temporaryPath.c_str(), AT_FDCWD, m_place.c_str(),
                                       RENAME_NOREPLACE) == 0));
}

void ReplacementFile::setPermissions() const
{
    constexpr mode_t permissions = S_IRWXU | S_IRWXG | S_IRWXO;
    constexpr mode_t readableByAll = S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH;
    struct stat present = {};
    if (stat(m_place.c_str(), &present) == 0)
        check(fchmod(m_descriptor, present.st_mode & permissions) == 0);
    else if (m_audience == Audience::Everybody)
        check(fchmod(m_descriptor, readableByAll) == 0);
}

} // namespace common
