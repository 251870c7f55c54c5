// SPDX-License-Identifier: MIT
// The statistics SDK as a host in C sees it: header and library without C++.
#include "KoraStatistics.h"

#include <stdio.h>

int main(void)
{
    _KORA_ST_CONNRECORD *records = NULL;
    int count = -1;
    if (KORA_Statistics_GetAllConnRecord(&records, &count) != 0)
        return 1;
    for (int i = 0; i < count; ++i)
        printf("%s %s\n", records[i].szStartTime, records[i].szEndTime);
    return KORA_Statistics_ReleaseConnRecord(records);
}
