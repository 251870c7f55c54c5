// SPDX-License-Identifier: MIT
#include "RawFile.h"

#include "StoreFailure.h"

#include <cerrno>

namespace history
{

RawFile::RawFile(const std::string &path)
    : m_path(path)
    , m_vfs(sqlite3_vfs_find(nullptr))
    , m_storage(new unsigned char[static_cast<std::size_t>(m_vfs->szOsFile)]())
    , m_name(sqlite3_create_filename(path.c_str(), "", "", 0, nullptr), sqlite3_free_filename)
{
    const int flags = SQLITE_OPEN_READONLY | SQLITE_OPEN_MAIN_DB;
    if (m_vfs->xOpen(m_vfs, m_name.get(), file(), flags, nullptr) != SQLITE_OK) {
        const int reason = errno;
        close();
        throw cannotOpen(path, reason);
    }
}

RawFile::~RawFile()
{
    close();
}

void RawFile::read(std::int64_t offset, void *bytes, std::size_t size)
{
    const int code = file()->pMethods->xRead(file(), bytes, static_cast<int>(size), offset);
    if (code != SQLITE_OK && code != SQLITE_IOERR_SHORT_READ)
        throw cannotOpen(m_path, errno);
}

void RawFile::close()
{
    if (file()->pMethods)
        file()->pMethods->xClose(file());
}

} // namespace history
