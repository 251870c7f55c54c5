// SPDX-License-Identifier: MIT
#include "Imported.h"

namespace formats
{

void countRunning(Imported &imported, std::int64_t line, std::string_view text)
{
    constexpr std::size_t shownBytes = 200;
    if (imported.unusable.empty())
        imported.unusable.push_back({"the connection still lasted", 0, 0, 0, line,
                                     std::string(text.substr(0, shownBytes))});
    ++imported.unusable.front().count;
}

history::Result<history::Store::Merged> addImported(history::Store &store, const Imported &imported,
                                                    const history::Store::Progress &progress)
{
    if (imported.profileSources.empty()) {
        const auto added = store.addMissing(imported.connections, progress);
        if (!added)
            return added.error();
        return history::Store::Merged{added.value(), 0};
    }
    const auto complete = [&imported](history::Connection &stored, std::size_t index) {
        return completeFromLog(stored, imported.connections[index], imported.profileSources[index]);
    };
    return store.merge(imported.connections, complete, progress);
}

} // namespace formats
