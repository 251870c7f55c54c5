// SPDX-License-Identifier: MIT
#include "StatisticsSession.h"

#include "KoraRecord.h"

#include <sys/mman.h>
#include <unistd.h>

#include <limits>
#include <memory>
#include <new>
#include <vector>

namespace refhost
{

namespace
{

history::StoreFailure noSuchRecord(const std::string &path, const std::string &reason)
{
    return {history::StoreError::Kind::NoSuchRecord, history::historyAt(path) + " " + reason};
}

/// The records of a table as they are being collected, with their keys.
struct Listing {
    RecordList list;
    std::vector<std::int64_t> keys;
};

/// Asks the system for large pages behind a large array: handing out memory page
/// by page would take longer than reading the records from the store.
void preferLargePages(void *start, std::size_t size)
{
    constexpr std::size_t worthwhile = std::size_t{4} << 20U;
    if (size < worthwhile)
        return;
    const auto pageSize = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    void *firstPage = start;
    std::size_t rest = size;
    // Only advice: without it the array is the same.
    if (std::align(pageSize, pageSize, firstPage, rest))
        madvise(firstPage, rest / pageSize * pageSize, MADV_HUGEPAGE);
}

_KORA_ST_CONNRECORD *allocateRecords(std::int64_t count)
{
    if (count == 0)
        return nullptr;
    if (count > std::numeric_limits<int>::max())
        throw std::bad_alloc();
    const auto number = static_cast<std::size_t>(count);
    // calloc takes an array of this size straight from the system, which has
    // zeroed it; nothing of the fields' unused bytes is written a second time. It also
    // sees to it that the product fits.
    void *const records = std::calloc(number, sizeof(_KORA_ST_CONNRECORD));
    if (!records)
        throw std::bad_alloc();
    preferLargePages(records, number * sizeof(_KORA_ST_CONNRECORD));
    return static_cast<_KORA_ST_CONNRECORD *>(records);
}

Listing listingOf(history::StoreTables &tables)
{
    const std::int64_t count = tables.connections.count();
    Listing listing;
    listing.list.records.reset(allocateRecords(count));
    listing.keys.reserve(static_cast<std::size_t>(count));
    tables.connections.visit({}, [&](const history::ConnectionRow &row) {
        // An index that disagrees with its table could yield more than was counted.
        if (listing.list.count == count)
            return;
        fillRecord(row, listing.list.records[static_cast<std::size_t>(listing.list.count++)]);
        listing.keys.push_back(row.key());
    });
    return listing;
}

} // namespace

history::Result<RecordList> StatisticsSession::allRecords()
{
    const std::lock_guard<std::mutex> oneAtATime(m_mutex);
    const std::string path = history::Store::defaultPath();
    return history::attempt(path, [&] {
        history::StoreDatabase &store = database(path);
        Listing listing = store.read(listingOf);
        ListNumbering numbering;
        numbering.assign(std::move(listing.keys));
        m_numbering = std::move(numbering);
        m_listedFile = store.file();
        return std::move(listing.list);
    });
}

history::Result<std::int64_t> StatisticsSession::removeRecord(int index)
{
    const std::lock_guard<std::mutex> oneAtATime(m_mutex);
    const std::string path = history::Store::defaultPath();
    return history::attempt(path, [&] {
        history::StoreDatabase &store = database(path);
        const std::size_t place = placeOf(path, index);
        const std::int64_t key = m_numbering->keyAt(place);
        const bool wasThere = store.write([&](history::StoreTables &tables) {
            if (!(store.file() == m_listedFile))
                throw noSuchRecord(path, "is not the one whose list was handed out; nothing was "
                                         "removed, fetch the list again.");
            return tables.remove(key);
        });
        // Not before: the removal stands only when it is committed.
        m_numbering->markGone(place);
        if (!wasThere)
            throw noSuchRecord(path, "has lost the record at the index " + std::to_string(index) +
                                         " to another program, which has removed it; nothing was "
                                         "removed, fetch the list again.");
        return key;
    });
}

history::Result<_KORA_ST_CONNRECORD> StatisticsSession::lastRecord()
{
    const std::lock_guard<std::mutex> oneAtATime(m_mutex);
    const std::string path = history::Store::defaultPath();
    return history::attempt(path, [&] {
        _KORA_ST_CONNRECORD record = {};
        const bool isThere = database(path).read([&](history::StoreTables &tables) {
            return tables.connections.visitLast(
                [&](const history::ConnectionRow &row) { fillRecord(row, record); });
        });
        if (!isThere)
            throw noSuchRecord(path, "has no finished connection yet; connect once, then ask "
                                     "again.");
        return record;
    });
}

history::StoreDatabase &StatisticsSession::database(const std::string &path)
{
    if (!m_database || path != m_path) {
        m_database = std::make_unique<history::StoreDatabase>(
            path, history::StoreDatabase::IfMissing::ReadAsEmpty);
        m_path = path;
    }
    return *m_database;
}

std::size_t StatisticsSession::placeOf(const std::string &path, int index)
{
    if (!m_numbering)
        throw noSuchRecord(path, "has not been listed yet, so the index " + std::to_string(index) +
                                     " means no record; fetch the list first.");
    if (index < 0 || static_cast<std::size_t>(index) >= m_numbering->size())
        throw noSuchRecord(path, "was handed out as a list of " +
                                     std::to_string(m_numbering->size()) +
                                     " records, in which there is no index " +
                                     std::to_string(index) + "; fetch the list again.");
    const std::size_t place = m_numbering->firstFrom(static_cast<std::size_t>(index));
    if (place == m_numbering->size())
        throw noSuchRecord(path, "has no record left at this index of the list or after it; "
                                 "fetch the list again.");
    return place;
}

} // namespace refhost
