// SPDX-License-Identifier: MIT
#include "SummaryChoice.h"

#include "CommonUtils.h"
#include "refhost/libcore/Host.h"

namespace refdialer
{

namespace
{

// The plug-in's own names.
const char *const pluginGroup = "NetInfoRecordUIPlugin";
const char *const summaryKey = "WhetherShowNotesbox";
const char *const summaryWanted = "true";
const char *const summaryUnwanted = "false";

QString storedChoice()
{
    return CommonUtils::GetSettings(pluginGroup, summaryKey);
}

} // namespace

bool isSummaryWanted()
{
    return storedChoice().compare(QLatin1String(summaryWanted), Qt::CaseInsensitive) == 0;
}

bool storeSummaryChoice(bool isWanted)
{
    return refhost::storeSetting(pluginGroup, summaryKey,
                                 isWanted ? summaryWanted : summaryUnwanted);
}

refhost::TemporarySetting suppressSummary()
{
    return {pluginGroup, summaryKey, summaryUnwanted};
}

void offerSummary()
{
    if (storedChoice().isEmpty() && !storeSummaryChoice(true))
        qWarning("No summary is shown after connections: the settings cannot be written to %s.",
                 qUtf8Printable(refhost::settingsFile()));
}

} // namespace refdialer
