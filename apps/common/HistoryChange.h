// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <ctime>
#include <string>

namespace common
{

/// Notices what is written into a history's file, by whichever program, without opening it:
/// cheap enough to ask every few seconds for months.
class HistoryChange
{
public:
    explicit HistoryChange(const std::string &storePath);

    /// Whether anything has been written since this was asked last.
    bool isNew();

private:
    /// Of one file; zeros while it is not there.
    struct Mark {
        std::uint64_t file = 0;
        std::int64_t size = 0;
        timespec written = {};

        bool operator==(const Mark &other) const;
    };

    static Mark markOf(const std::string &path);

    /// The history and the log that SQLite keeps beside it.
    const std::array<std::string, 2> m_files;
    std::array<Mark, 2> m_marks;
};

} // namespace common
