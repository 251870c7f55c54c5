// SPDX-License-Identifier: MIT
#include "KnownNames.h"

namespace usage
{

namespace
{

template <typename Connections>
void addNames(KnownNames &names, const Connections &connections)
{
    for (const history::ConnectionBase &each : connections) {
        names.profiles.insert(each.profile);
        names.sims.insert(each.sim);
    }
}

} // namespace

history::Result<KnownNames> knownNames(const history::Store &store)
{
    const auto finished = store.list();
    if (!finished)
        return finished.error();
    const auto open = store.listOpen();
    if (!open)
        return open.error();
    KnownNames names;
    addNames(names, finished.value());
    addNames(names, open.value());
    return names;
}

} // namespace usage
