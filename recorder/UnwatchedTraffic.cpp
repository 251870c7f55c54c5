// SPDX-License-Identifier: MIT
#include "UnwatchedTraffic.h"

#include <algorithm>

namespace recorder
{

namespace
{

constexpr const char *endedUnwatched = "not watched";

/// What of this link is known from before.
struct Earlier {
    std::int64_t seenUtc = 0;
    LinkCounters counters;
    bool isSameLink = false;
};

std::optional<Earlier> earlierOf(const history::SeenLink &link,
                                 const std::vector<history::SeenLink> &seenBefore)
{
    std::optional<Earlier> earlier;
    for (const history::SeenLink &each : seenBefore) {
        if (each.bootId == link.bootId && each.interfaceIndex == link.interfaceIndex)
            return Earlier{each.seenUtc, {each.uploaded, each.downloaded}, true};
        if (each.interfaceName == link.interfaceName)
            earlier = Earlier{std::max(earlier ? earlier->seenUtc : 0, each.seenUtc), {}, false};
    }
    return earlier;
}

/// Nothing can be said about a damaged store's number that no counter shows.
std::int64_t movedSince(std::int64_t before, std::int64_t now)
{
    if (before < 0)
        return 0;
    return now < before ? now : now - before;
}

/// Before the system was started there was no link that could move anything.
history::Connection recordOf(const FirstSight &sight, const Earlier &earlier,
                             const LinkCounters &moved)
{
    history::Connection record;
    record.profile = sight.profile;
    record.startUtc = std::min(std::max(earlier.seenUtc, sight.bootUtc), sight.link.seenUtc);
    record.endUtc = sight.link.seenUtc;
    record.uploadedBytes = moved.uploaded;
    record.downloadedBytes = moved.downloaded;
    record.ending = endedUnwatched;
    record.interfaceName = sight.link.interfaceName;
    return record;
}

} // namespace

FirstSightVerdict judge(const FirstSight &sight, const std::vector<history::SeenLink> &seenBefore)
{
    const auto earlier = earlierOf(sight.link, seenBefore);
    FirstSightVerdict verdict = {sight.link, std::nullopt, earlier && earlier->isSameLink};
    if (!verdict.wasSeenInThisRun) {
        verdict.settled.uploaded = sight.base.uploaded;
        verdict.settled.downloaded = sight.base.downloaded;
    }
    if (!earlier)
        return verdict;
    const LinkCounters moved = {
        movedSince(earlier->counters.uploaded, verdict.settled.uploaded),
        movedSince(earlier->counters.downloaded, verdict.settled.downloaded)};
    if (moved.uploaded != 0 || moved.downloaded != 0)
        verdict.unwatched = recordOf(sight, *earlier, moved);
    return verdict;
}

} // namespace recorder
