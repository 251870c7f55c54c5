// SPDX-License-Identifier: MIT
// A host's libsdk at its smallest: three records that last as long as the program.
// Your store of connections takes their place.
#include "KoraStatistics.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <map>
#include <vector>

namespace
{

constexpr int failure = 1;

using Store = std::map<int, _KORA_ST_CONNRECORD>; // by a key that a record keeps

Store &store()
{
    static Store records = {
        {1,
         {u"internet.example", "1709200800", "1709204400", "3600", "1048576", "73400320", "", ""}},
        {2, {u"web.example", "1709287200", "1709287260", "60", "1536", "20480", "", ""}},
        {3,
         {u"internet.example", "1709373600", "1709380800", "7200", "5242880", "1288490188", "",
          ""}},
    };
    return records;
}

// The keys of the list that was handed out last: an index is a position in it, and
// removals do not move it.
std::vector<int> &handedOut()
{
    static std::vector<int> keys;
    return keys;
}

bool endsEarlier(const Store::value_type &left, const Store::value_type &right)
{
    return std::atoll(left.second.szEndTime) < std::atoll(right.second.szEndTime);
}

} // namespace

int KORA_Statistics_GetAllConnRecord(_KORA_ST_CONNRECORD **records, int *count)
{
    *records = new _KORA_ST_CONNRECORD[store().size()];
    *count = static_cast<int>(store().size());
    handedOut().clear();
    for (const auto &[key, record] : store()) {
        (*records)[handedOut().size()] = record;
        handedOut().push_back(key);
    }
    return 0;
}

int KORA_Statistics_ConnRecord_RemoveRecord(int index)
{
    if (index < 0)
        return failure;
    // Of a record that has gone already, the first one after it stands in the place.
    for (std::size_t i = index; i < handedOut().size(); ++i) {
        if (store().erase(handedOut()[i]) > 0)
            return 0;
    }
    return failure;
}

int KORA_Statistics_ReleaseConnRecord(_KORA_ST_CONNRECORD *records)
{
    delete[] records;
    return 0;
}

int KORA_Statistics_GetLastConnRecord(_KORA_ST_CONNRECORD *record)
{
    if (store().empty())
        return failure;
    *record = std::max_element(store().begin(), store().end(), endsEarlier)->second;
    return 0;
}
