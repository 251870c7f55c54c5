// SPDX-License-Identifier: MIT
#pragma once

#include "refhost/libcore/TemporarySetting.h"

namespace refdialer
{

/// Whether the history plug-in shows a summary after each connection, as its
/// setting says.
bool isSummaryWanted();

/// False if the choice cannot be written.
bool storeSummaryChoice(bool isWanted);

/// While the answer lives, the plug-in shows none, whatever its setting says.
refhost::TemporarySetting suppressSummary();

/// Turns the summary on for a user who has not chosen yet, so that it is seen.
void offerSummary();

} // namespace refdialer
