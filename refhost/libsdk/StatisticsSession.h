// SPDX-License-Identifier: MIT
#pragma once

#include "KoraStatistics.h"
#include "ListNumbering.h"
#include "history/Result.h"
#include "history/StoreDatabase.h"

#include <cstdlib>
#include <memory>
#include <mutex>
#include <optional>

namespace refhost
{

struct FreeRecords {
    void operator()(_KORA_ST_CONNRECORD *records) const { std::free(records); }
};

/// Records allocated by this library as one array.
struct RecordList {
    std::unique_ptr<_KORA_ST_CONNRECORD[], FreeRecords> records; ///< null if there are none
    int count = 0;
};

/// What the four functions of KoraStatistics.h keep between their calls: the
/// store at the path in force, and the numbering of the list last handed out, which
/// all threads share. Calls may come from any thread and are worked off one by one.
class StatisticsSession
{
public:
    /// All records in the list's order; their places are the indices that
    /// removeRecord understands from then on.
    history::Result<RecordList> allRecords();
    /// Removes the record that `index` means and returns its key. One that another
    /// process has removed is an error once and then counts as removed here.
    history::Result<std::int64_t> removeRecord(int index);
    history::Result<_KORA_ST_CONNRECORD> lastRecord();

private:
    history::StoreDatabase &database(const std::string &path);
    /// The place in the list last handed out whose record `index` means now.
    std::size_t placeOf(const std::string &path, int index);

    std::mutex m_mutex;
    std::unique_ptr<history::StoreDatabase> m_database;
    std::string m_path;
    std::optional<ListNumbering> m_numbering;
    std::optional<history::FileIdentity> m_listedFile;
};

} // namespace refhost
