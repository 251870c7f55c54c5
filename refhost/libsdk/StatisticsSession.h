// SPDX-License-Identifier: MIT
#pragma once

#include "KoraStatistics.h"
#include "ListNumbering.h"
#include "Result.h"
#include "StoreDatabase.h"

#include <cstdlib>
#include <memory>
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
/// store at the path in force, and the numbering of the list last handed out.
class StatisticsSession
{
public:
    /// All records in the list's order; their places are the indices that
    /// removeRecord understands from then on.
    Result<RecordList> allRecords();
    /// Removes the record that `index` means and returns its key.
    Result<std::int64_t> removeRecord(int index);
    Result<_KORA_ST_CONNRECORD> lastRecord();

private:
    StoreDatabase &database(const std::string &path);
    void checkIndex(const std::string &path, int index) const;
    std::int64_t removeFirstFrom(std::size_t place, ConnectionTable &table);

    std::unique_ptr<StoreDatabase> m_database;
    std::string m_path;
    std::optional<ListNumbering> m_numbering;
    std::optional<FileIdentity> m_listedFile;
};

} // namespace refhost
