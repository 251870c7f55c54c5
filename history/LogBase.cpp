// SPDX-License-Identifier: MIT
#include "LogBase.h"

#include "RawFile.h"
#include "StoreFile.h"
#include "StoreSchema.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace history
{

namespace
{

// The layout of a log: its header, then frames of a header and a page each. All
// numbers are big endian.
constexpr std::size_t logHeaderSize = 32;
constexpr std::size_t pageSizeOffset = 8;
constexpr std::size_t logSaltOffset = 16;
constexpr std::size_t frameHeaderSize = 24;
constexpr std::size_t committedSizeOffset = 4;
constexpr std::size_t frameSaltOffset = 8;
constexpr std::uint32_t largestPage = 65536;

std::uint32_t bigEndian(const char *bytes)
{
    std::uint32_t value = 0;
    for (int i = 0; i < 4; ++i)
        value = value << 8U | static_cast<unsigned char>(bytes[i]);
    return value;
}

/// Goes through the frames of a log that belong to its header.
class LogFrames
{
public:
    explicit LogFrames(const std::string &path)
        : m_log(path, std::ios::binary)
    {
        m_log.read(m_header.data(), logHeaderSize);
        const std::uint32_t pageSize = bigEndian(m_header.data() + pageSizeOffset);
        if (pageSize <= largestPage)
            m_page.resize(pageSize);
    }

    bool next()
    {
        if (m_page.empty() || !m_log.read(m_frame.data(), frameHeaderSize) ||
            !m_log.read(m_page.data(), static_cast<std::streamsize>(m_page.size())))
            return false;
        return salts(m_frame.data() + frameSaltOffset) == salts(m_header.data() + logSaltOffset);
    }

    std::uint32_t pageNumber() const { return bigEndian(m_frame.data()); }
    bool endsTransaction() const { return bigEndian(m_frame.data() + committedSizeOffset) != 0; }
    const std::vector<char> &page() const { return m_page; }

private:
    static std::pair<std::uint32_t, std::uint32_t> salts(const char *bytes)
    {
        return {bigEndian(bytes), bigEndian(bytes + 4)};
    }

    std::ifstream m_log;
    std::array<char, logHeaderSize> m_header = {};
    std::array<char, frameHeaderSize> m_frame = {};
    std::vector<char> m_page;
};

/// Whether changes of the log have come into the file already: one of the `telling`
/// pages, which differ in each log, or all of them. A program that is killed while it
/// plays its log leaves a file that has changed since the log has; a power cut then leaves
/// any of the pages.
bool isPlayed(const std::string &path, const std::set<std::uint32_t> &telling)
{
    RawFile file(path);
    LogFrames frames(logOf(path));
    std::map<std::uint32_t, bool> isInFile;
    std::map<std::uint32_t, bool> transaction;
    while (frames.next()) {
        std::vector<char> page(frames.page().size());
        const std::int64_t offset =
            (std::int64_t{frames.pageNumber()} - 1) * static_cast<std::int64_t>(page.size());
        file.read(offset, page.data(), page.size());
        transaction[frames.pageNumber()] = page == frames.page();
        if (!frames.endsTransaction())
            continue;
        for (const auto &[number, isThere] : transaction) {
            if (isThere && telling.count(number) != 0)
                return true;
            isInFile[number] = isThere;
        }
        transaction.clear();
    }
    return std::all_of(isInFile.begin(), isInFile.end(),
                       [](const auto &page) { return page.second; });
}

bool isDamage(const SQLite::Exception &exception)
{
    return exception.getErrorCode() == SQLITE_CORRUPT || exception.getErrorCode() == SQLITE_NOTADB;
}

} // namespace

LogBase::LogBase(SQLite::Database &database, std::string path)
    : m_database(database)
    , m_path(std::move(path))
{
}

void LogBase::record()
{
    const auto file = changeOf(m_path);
    const auto log = changeOf(logOf(m_path));
    if (!file || !log)
        return;
    SQLite::Statement statement(
        m_database, "INSERT INTO log_base (only, file_inode, file_written_ns, log_inode)"
                    " VALUES (1, ?, ?, ?) ON CONFLICT (only) DO UPDATE SET"
                    " file_inode = excluded.file_inode,"
                    " file_written_ns = excluded.file_written_ns,"
                    " log_inode = excluded.log_inode"
                    " WHERE (file_inode, file_written_ns, log_inode) IS NOT"
                    " (excluded.file_inode, excluded.file_written_ns, excluded.log_inode)");
    statement.bind(1, file->inode);
    statement.bind(2, file->writtenNs);
    statement.bind(3, log->inode);
    // The header is on the first page and counts each change of that page, so setting
    // what it says already makes the page one that no other file has.
    if (statement.exec() > 0)
        m_database.exec("PRAGMA application_id = " + std::to_string(storeApplicationId));
}

bool LogBase::isOfThisFile()
{
    // Another program may be playing its log into the file just now: what was read
    // before that does not fit what is read after it.
    constexpr int attempts = 3;
    for (int i = 0; i < attempts && hasLog(m_path); ++i) {
        if (matches())
            return true;
    }
    return !hasLog(m_path);
}

bool LogBase::matches()
{
    const SQLite::Transaction transaction(m_database);
    const auto file = changeOf(m_path);
    const auto log = changeOf(logOf(m_path));
    if (!file || !log)
        return true;
    // A log that was written last, or is itself a copy that has kept its time, may have
    // been put back together with the file.
    return log->writtenNs >= file->changedNs || log->writtenNs < log->bornNs ||
           isRecorded(*file, *log) || isPlayed(m_path, tellingPages());
}

/// What cannot be known, because an older version has written the log or because both
/// were moved, is not held against it.
bool LogBase::isRecorded(const FileChange &file, const FileChange &log)
{
    try {
        if (!m_database.tableExists("log_base"))
            return true;
        SQLite::Statement row(m_database,
                              "SELECT file_inode, file_written_ns, log_inode FROM log_base");
        if (!row.executeStep() || row.getColumn(2).getInt64() != log.inode)
            return true;
        // A power cut takes times back, so the file may look older than it was.
        const std::int64_t writtenNs = row.getColumn(1).getInt64();
        return row.getColumn(0).getInt64() == file.inode &&
               (file.writtenNs == writtenNs || file.changedNs <= writtenNs);
    } catch (const SQLite::Exception &exception) {
        if (!isDamage(exception))
            throw;
        return false; // the log of one file makes another one unreadable
    }
}

/// The first page, which counts its changes, and the row's own.
std::set<std::uint32_t> LogBase::tellingPages()
{
    std::set<std::uint32_t> pages = {1};
    try {
        SQLite::Statement row(m_database,
                              "SELECT rootpage FROM sqlite_schema WHERE name = 'log_base'");
        if (row.executeStep())
            pages.insert(row.getColumn(0).getUInt());
    } catch (const SQLite::Exception &exception) {
        if (!isDamage(exception))
            throw;
    }
    return pages;
}

} // namespace history
