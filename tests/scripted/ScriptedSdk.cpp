// SPDX-License-Identifier: MIT
#include "ScriptedHost.h"

#include <algorithm>

using scripted::Host;

int KORA_Statistics_GetAllConnRecord(_KORA_ST_CONNRECORD **records, int *count)
{
    Host &host = Host::instance();
    host.calls.append(QStringLiteral("GetAllConnRecord()"));
    if (host.handsOutNullArray) {
        *count = host.nullArrayCount;
        return host.getAllStatus;
    }
    // Exactly as long as needed, so that reading past the end is seen.
    *records = new _KORA_ST_CONNRECORD[static_cast<std::size_t>(host.records.size())];
    *count = static_cast<int>(host.records.size());
    std::copy(host.records.cbegin(), host.records.cend(), *records);
    ++host.openArrays;
    if (host.getAllStatus == 0 && host.handedOut)
        host.handedOut();
    return host.getAllStatus;
}

int KORA_Statistics_ConnRecord_RemoveRecord(int index)
{
    Host &host = Host::instance();
    host.calls.append(QStringLiteral("RemoveRecord(%1)").arg(index));
    return host.removeStatus ? host.removeStatus(index) : 0;
}

int KORA_Statistics_ReleaseConnRecord(_KORA_ST_CONNRECORD *records)
{
    Host &host = Host::instance();
    host.calls.append(records ? QStringLiteral("ReleaseConnRecord(array)")
                              : QStringLiteral("ReleaseConnRecord(null)"));
    if (records)
        --host.openArrays;
    delete[] records;
    return 0;
}

int KORA_Statistics_GetLastConnRecord(_KORA_ST_CONNRECORD *record)
{
    Host &host = Host::instance();
    host.calls.append(QStringLiteral("GetLastConnRecord()"));
    if (host.getLastStatus == 0)
        *record = host.lastRecord;
    return host.getLastStatus;
}
