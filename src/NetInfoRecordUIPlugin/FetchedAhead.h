// SPDX-License-Identifier: MIT
#pragma once

#include "ConnectionRecord.h"

#include <QHash>

#include <cstddef>

/// Asks the processor for the records that a walk over them comes to next. In the order of
/// their map they lie anywhere in memory, and waiting for it is a quarter of a long fill.
/// GCC leaves out calls of functions that do no more than ask; these step on as well.
class FetchedAhead
{
public:
    explicit FetchedAhead(const QHash<int, ConnectionRecord *> &records)
        : m_nextRecord(records.begin())
        , m_nextTexts(records.begin())
        , m_end(records.end())
    {
        for (int i = 0; i < recordsAhead; ++i)
            fetchRecord();
        for (int i = 0; i < textsAhead; ++i)
            fetchTexts();
    }

    void advance()
    {
        fetchRecord();
        fetchTexts();
    }

private:
    using Place = QHash<int, ConnectionRecord *>::const_iterator;

    // Where the texts lie is read from the record, which has to be there by then.
    static constexpr int recordsAhead = 16;
    static constexpr int textsAhead = 8;
    static constexpr std::size_t cacheLine = 64;

    void fetchRecord()
    {
        if (m_nextRecord == m_end)
            return;
        const auto *const bytes = reinterpret_cast<const char *>(*m_nextRecord++);
        for (std::size_t place = 0; bytes && place < sizeof(ConnectionRecord); place += cacheLine)
            __builtin_prefetch(bytes + place);
    }

    // The name of the profile is mostly that of the rows before.
    void fetchTexts()
    {
        if (m_nextTexts == m_end)
            return;
        const ConnectionRecord *const record = *m_nextTexts++;
        if (!record)
            return;
        for (const QString *text :
             {&record->m_strStartTime, &record->m_strEndTime, &record->m_strConnectedTime,
              &record->m_strUploaded, &record->m_strDownloaded})
            __builtin_prefetch(text->constData());
    }

    Place m_nextRecord;
    Place m_nextTexts;
    Place m_end;
};
