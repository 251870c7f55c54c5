// SPDX-License-Identifier: MIT
#pragma once

#include "HostApi.h"

#ifdef __cplusplus
#    include <cstddef>
#else
#    include <assert.h>
#    include <stddef.h>
#    include <uchar.h>
#endif

/// One connection as the statistics SDK (library libsdk) hands it out. Every
/// field holds text, ended by a NUL or by the field's own size: the profile in
/// UTF-16 of host byte order, numbers in ASCII decimal, extra texts in 8 bit.
typedef struct _KORA_ST_CONNRECORD {
    char16_t szProfileName[128]; ///< profile (APN) name
    char szStartTime[32];        ///< start, seconds since 1970-01-01 00:00 UTC
    char szEndTime[32];          ///< end, same unit
    char szDuration[32];         ///< connected time in seconds
    char szUploadBytes[64];      ///< bytes sent
    char szDownloadBytes[64];    ///< bytes received
    char szExtraText1[32];       ///< the SDK's own
    char szExtraText2[32];       ///< the SDK's own
} _KORA_ST_CONNRECORD;

static_assert(sizeof(_KORA_ST_CONNRECORD) == 544, "arrays have a stride of 544 bytes");
static_assert(offsetof(_KORA_ST_CONNRECORD, szProfileName) == 0, "fixed layout");
static_assert(offsetof(_KORA_ST_CONNRECORD, szStartTime) == 256, "fixed layout");
static_assert(offsetof(_KORA_ST_CONNRECORD, szEndTime) == 288, "fixed layout");
static_assert(offsetof(_KORA_ST_CONNRECORD, szDuration) == 320, "fixed layout");
static_assert(offsetof(_KORA_ST_CONNRECORD, szUploadBytes) == 352, "fixed layout");
static_assert(offsetof(_KORA_ST_CONNRECORD, szDownloadBytes) == 416, "fixed layout");
static_assert(offsetof(_KORA_ST_CONNRECORD, szExtraText1) == 480, "fixed layout");
static_assert(offsetof(_KORA_ST_CONNRECORD, szExtraText2) == 512, "fixed layout");

// All four return 0 for success. The plug-in calls them on the GUI thread.
#ifdef __cplusplus
extern "C" {
#endif

/// Hands out every finished connection in an array of the SDK's own; the caller
/// gives it back with KORA_Statistics_ReleaseConnRecord. On failure the array
/// may be null.
HOST_API int KORA_Statistics_GetAllConnRecord(_KORA_ST_CONNRECORD **records, int *count);

/// Removes one record from the SDK's store: the one at this zero-based index of the list
/// handed out last, or, if that has gone already, the first one after it that is left.
HOST_API int KORA_Statistics_ConnRecord_RemoveRecord(int index);

/// Frees an array from KORA_Statistics_GetAllConnRecord; null is allowed.
HOST_API int KORA_Statistics_ReleaseConnRecord(_KORA_ST_CONNRECORD *records);

/// Fills the caller's record with the most recent finished connection.
HOST_API int KORA_Statistics_GetLastConnRecord(_KORA_ST_CONNRECORD *record);

#ifdef __cplusplus
} // extern "C"
#endif
