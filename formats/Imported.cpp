// SPDX-License-Identifier: MIT
#include "Imported.h"

namespace formats
{

history::Result<history::Store::Merged> addImported(history::Store &store, const Imported &imported,
                                                    const history::Store::Progress &progress)
{
    if (imported.spool) {
        const auto added = store.addMissing(*imported.spool, progress);
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
