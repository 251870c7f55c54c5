// SPDX-License-Identifier: MIT
#pragma once

#include "KoraStatistics.h"

#include <vector>

/// The statistics SDK that the plug-in meets in this program: its store is a
/// vector, and it notes nothing, so that it hardly weighs.
namespace MemorySdk
{

/// `count` connections over some twelve years, oldest first.
std::vector<_KORA_ST_CONNRECORD> samples(int count);

/// Makes these the records that are in the store.
void setRecords(std::vector<_KORA_ST_CONNRECORD> records);

} // namespace MemorySdk
