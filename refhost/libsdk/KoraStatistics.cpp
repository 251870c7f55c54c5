// SPDX-License-Identifier: MIT
#include "KoraStatistics.h"

#include "KoraStatus.h"
#include "StatisticsSession.h"

#include <cstdio>
#include <string>

namespace
{

refhost::StatisticsSession &session()
{
    static refhost::StatisticsSession theSession;
    return theSession;
}

refhost::KoraStatus statusOf(history::StoreError::Kind kind)
{
    switch (kind) {
    case history::StoreError::Kind::CannotOpen:
        return refhost::KoraCannotOpen;
    case history::StoreError::Kind::NotAStore:
        return refhost::KoraNotAStore;
    case history::StoreError::Kind::NewerStore:
        return refhost::KoraNewerStore;
    case history::StoreError::Kind::Damaged:
        return refhost::KoraDamaged;
    case history::StoreError::Kind::Locked:
        return refhost::KoraLocked;
    case history::StoreError::Kind::WriteFailed:
        return refhost::KoraWriteFailed;
    case history::StoreError::Kind::BadRecord:
        return refhost::KoraBadArgument;
    case history::StoreError::Kind::NoSuchRecord:
        return refhost::KoraNoSuchRecord;
    }
    return refhost::KoraCannotOpen;
}

void log(const char *sentence)
{
    std::fprintf(stderr, "refhost.sdk: %s\n", sentence);
}

int failed(const history::StoreError &error)
{
    log(error.message.c_str());
    return statusOf(error.kind);
}

int nullArgument(const char *sentence)
{
    log(sentence);
    return refhost::KoraBadArgument;
}

} // namespace

int KORA_Statistics_GetAllConnRecord(_KORA_ST_CONNRECORD **records, int *count)
{
    if (!records || !count)
        return nullArgument("KORA_Statistics_GetAllConnRecord was called with a null pointer; give "
                            "it a place for the array and one for the count.");
    *records = nullptr;
    *count = 0;
    auto list = session().allRecords();
    if (!list)
        return failed(list.error());
    *count = list.value().count;
    *records = list.value().records.release();
    return refhost::KoraOk;
}

int KORA_Statistics_ConnRecord_RemoveRecord(int index)
{
    const auto removed = session().removeRecord(index);
    return removed ? refhost::KoraOk : failed(removed.error());
}

int KORA_Statistics_ReleaseConnRecord(_KORA_ST_CONNRECORD *records)
{
    refhost::FreeRecords()(records);
    return refhost::KoraOk;
}

int KORA_Statistics_GetLastConnRecord(_KORA_ST_CONNRECORD *record)
{
    if (!record)
        return nullArgument("KORA_Statistics_GetLastConnRecord was called with a null pointer; "
                            "give it a record to fill.");
    const auto last = session().lastRecord();
    if (!last)
        return failed(last.error());
    *record = last.value();
    return refhost::KoraOk;
}
