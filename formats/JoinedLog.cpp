// SPDX-License-Identifier: MIT
#include "JoinedLog.h"

#include "YearResolver.h"

#include <algorithm>
#include <limits>
#include <map>
#include <tuple>
#include <utility>

namespace formats
{

namespace
{

/// One file, its place in the command, and where its lines are in time.
struct PlacedFile {
    LogFile file;
    std::size_t index = 0;
    std::int64_t firstUtc = 0;
};

std::int64_t firstMoment(const LogFile &file)
{
    const std::vector<ClockRun> &runs = file.log.clock.runs();
    const YearResolver years(runs, {}, file.changedUtc);
    return runs.empty() ? file.changedUtc : years.utc(runs.front().first, 0);
}

std::vector<PlacedFile> inOrderOfTime(std::vector<LogFile> files)
{
    std::vector<PlacedFile> placed;
    for (LogFile &file : files) {
        const std::int64_t first = firstMoment(file);
        placed.push_back({std::move(file), placed.size(), first});
    }
    std::stable_sort(placed.begin(), placed.end(),
                     [](const PlacedFile &left, const PlacedFile &right) {
                         return left.firstUtc < right.firstUtc;
                     });
    return placed;
}

void setMoments(std::vector<PppdEvent> &events, const YearResolver &years, std::size_t fileIndex)
{
    for (PppdEvent &event : events) {
        event.file = fileIndex;
        if (event.time)
            event.utc = years.utc(*event.time, event.run);
    }
}

/// Resolves the files' times from the last one to the first: an earlier file does not
/// end after a later one, whatever happened to its own time.
void resolveTimes(std::vector<PlacedFile> &files, std::optional<int> lastYear, JoinedLog &joined)
{
    std::int64_t latest = std::numeric_limits<std::int64_t>::max();
    for (auto file = files.rbegin(); file != files.rend(); ++file) {
        PppdLog &log = file->file.log;
        const bool isLast = joined.lastYear == 0;
        const std::vector<ClockRun> &runs = log.clock.runs();
        const YearResolver years(runs, isLast ? lastYear : std::nullopt,
                                 std::min(file->file.changedUtc, latest));
        setMoments(log.events, years, file->index);
        if (runs.empty())
            continue;
        joined.hasImpossibleDay = joined.hasImpossibleDay || years.hasImpossibleDay();
        if (isLast) {
            joined.lastYear = years.lastYear();
            joined.isYearGuess = years.isGuess();
        }
        latest = std::min(latest, years.utc(runs.back().last, runs.size() - 1));
    }
}

/// Merges the files by time and keeps each one's own order, whatever its clock does.
std::vector<PppdEvent> mergedEvents(std::vector<PlacedFile> &files)
{
    struct Keyed {
        std::int64_t utc;
        PppdEvent event;
    };
    std::vector<Keyed> keyed;
    for (PlacedFile &file : files) {
        std::int64_t utc = file.firstUtc;
        for (PppdEvent &event : std::exchange(file.file.log.events, {})) {
            utc = std::max(utc, event.utc.value_or(utc));
            keyed.push_back({utc, std::move(event)});
        }
    }
    std::stable_sort(keyed.begin(), keyed.end(),
                     [](const Keyed &left, const Keyed &right) { return left.utc < right.utc; });
    std::vector<PppdEvent> events;
    events.reserve(keyed.size());
    for (Keyed &each : keyed)
        events.push_back(std::move(each.event));
    return events;
}

/// Leaves out the lines that an earlier file has as well.
void dropRepeatedLines(std::vector<PppdEvent> &events)
{
    struct Seen {
        std::map<std::size_t, std::size_t> inFile;
        std::size_t kept = 0;
    };
    using Line = std::tuple<std::optional<std::int64_t>, std::string, std::string, std::int64_t,
                            std::string>;
    std::map<Line, Seen> seen;
    const auto isRepeated = [&seen](const PppdEvent &event) {
        Seen &line = seen[{event.utc, event.host, event.process, event.pid, event.messageText}];
        const bool isNew = ++line.inFile[event.file] > line.kept;
        line.kept += isNew ? 1 : 0;
        return !isNew;
    };
    events.erase(std::remove_if(events.begin(), events.end(), isRepeated), events.end());
}

} // namespace

JoinedLog joinLogs(std::vector<LogFile> files, std::optional<int> lastYear)
{
    JoinedLog joined;
    std::vector<PlacedFile> placed = inOrderOfTime(std::move(files));
    resolveTimes(placed, lastYear, joined);
    joined.events = mergedEvents(placed);
    if (placed.size() > 1)
        dropRepeatedLines(joined.events);
    dropCopies(joined.events);
    for (std::size_t i = 0; i < joined.events.size(); ++i)
        joined.events[i].place = i;
    return joined;
}

} // namespace formats
