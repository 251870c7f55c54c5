// SPDX-License-Identifier: MIT
#include "HistoryChange.h"

#include "FilePlace.h"

#include <sys/stat.h>

#include <tuple>
#include <utility>

namespace common
{

bool HistoryChange::Mark::operator==(const Mark &other) const
{
    return std::tie(file, size, written.tv_sec, written.tv_nsec) ==
           std::tie(other.file, other.size, other.written.tv_sec, other.written.tv_nsec);
}

HistoryChange::HistoryChange(const std::string &storePath)
    : m_files({placeOf(storePath).string(), placeOf(storePath).string() + "-wal"})
{
}

bool HistoryChange::isNew()
{
    const std::array<Mark, 2> marks = {markOf(m_files[0]), markOf(m_files[1])};
    return !(std::exchange(m_marks, marks) == marks);
}

HistoryChange::Mark HistoryChange::markOf(const std::string &path)
{
    struct stat file = {};
    if (::stat(path.c_str(), &file) != 0)
        return {};
    return {file.st_ino, file.st_size, file.st_mtim};
}

} // namespace common
