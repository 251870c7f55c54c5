// SPDX-License-Identifier: MIT
#include "MemorySdk.h"

#include "ScriptedHost.h"

#include <QString>

#include <algorithm>

namespace
{

std::vector<_KORA_ST_CONNRECORD> store;

_KORA_ST_CONNRECORD sample(int number, int count)
{
    const qint64 firstStart = 1293836400; // New Year 2011 in Berlin
    const qint64 span = 12LL * 365 * 24 * 3600;
    const qint64 start = firstStart + span * number / count;
    const int duration = 30 + number * 37 % 20000;
    return scripted::record(
        QStringLiteral("internet%1.example").arg(number % 7), QByteArray::number(start),
        QByteArray::number(start + duration), QByteArray::number(duration),
        QByteArray::number(number * 104729LL % 3000000000LL),
        QByteArray::number(number * 1299709LL % 30000000000LL), "normal", "ppp0");
}

} // namespace

std::vector<_KORA_ST_CONNRECORD> MemorySdk::samples(int count)
{
    std::vector<_KORA_ST_CONNRECORD> records;
    records.reserve(static_cast<std::size_t>(count));
    for (int number = 0; number < count; ++number)
        records.push_back(sample(number, count));
    return records;
}

void MemorySdk::setRecords(std::vector<_KORA_ST_CONNRECORD> records)
{
    store = std::move(records);
}

int KORA_Statistics_GetAllConnRecord(_KORA_ST_CONNRECORD **records, int *count)
{
    *records = new _KORA_ST_CONNRECORD[store.size()];
    *count = static_cast<int>(store.size());
    std::copy(store.cbegin(), store.cend(), *records);
    return 0;
}

int KORA_Statistics_ConnRecord_RemoveRecord(int index)
{
    // An index means a place in the list handed out, so nothing moves up.
    return static_cast<std::size_t>(index) < store.size() ? 0 : 1;
}

int KORA_Statistics_ReleaseConnRecord(_KORA_ST_CONNRECORD *records)
{
    delete[] records;
    return 0;
}

int KORA_Statistics_GetLastConnRecord(_KORA_ST_CONNRECORD *record)
{
    if (store.empty())
        return 1;
    *record = store.back();
    return 0;
}
