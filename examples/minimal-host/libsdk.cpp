// SPDX-License-Identifier: MIT
// A host's libsdk at its smallest: three records that last as long as the program.
// Your store of connections takes their place.
#include "KoraStatistics.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace
{

constexpr int failure = 1;

std::vector<_KORA_ST_CONNRECORD> &store()
{
    static std::vector<_KORA_ST_CONNRECORD> records = {
        {u"internet.example", "1709200800", "1709204400", "3600", "1048576", "73400320", "", ""},
        {u"web.example", "1709287200", "1709287260", "60", "1536", "20480", "", ""},
        {u"internet.example", "1709373600", "1709380800", "7200", "5242880", "1288490188", "", ""},
    };
    return records;
}

bool endsEarlier(const _KORA_ST_CONNRECORD &left, const _KORA_ST_CONNRECORD &right)
{
    return std::atoll(left.szEndTime) < std::atoll(right.szEndTime);
}

} // namespace

int KORA_Statistics_GetAllConnRecord(_KORA_ST_CONNRECORD **records, int *count)
{
    *records = new _KORA_ST_CONNRECORD[store().size()];
    *count = static_cast<int>(store().size());
    std::copy(store().begin(), store().end(), *records);
    return 0;
}

int KORA_Statistics_ConnRecord_RemoveRecord(int index)
{
    if (index < 0 || index >= static_cast<int>(store().size()))
        return failure;
    store().erase(store().begin() + index);
    return 0;
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
    *record = *std::max_element(store().begin(), store().end(), endsEarlier);
    return 0;
}
