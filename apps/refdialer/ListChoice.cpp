// SPDX-License-Identifier: MIT
#include "ListChoice.h"

#include "CommonUtils.h"
#include "apps/common/RecordingChoices.h"
#include "refhost/libcore/Host.h"

#include <algorithm>

namespace refdialer
{

namespace
{

const char *const shortestKey = "shortestListed";

} // namespace

int shortestListed()
{
    const int seconds = CommonUtils::GetSettings(common::settingsGroup, shortestKey).toInt();
    return std::clamp(seconds, 0, longestShortest);
}

bool storeShortestListed(int seconds)
{
    return refhost::storeSetting(common::settingsGroup, shortestKey, QString::number(seconds));
}

} // namespace refdialer
