// SPDX-License-Identifier: MIT
#pragma once

#include "LinkTable.h"

#include <QStringList>

#include <set>

namespace recorder
{

/// Which links' connections are to be recorded: mobile ones, those that the user names,
/// by whichever of their names, and those of connections that are resumed.
class WatchedLinks
{
public:
    explicit WatchedLinks(const QStringList &interfaceNames);

    bool contains(const Link &link) const;

    /// Watches the link of this index for the connection that it has, until forget().
    void resume(int linkIndex) { m_resumed.insert(linkIndex); }
    void forget(int linkIndex) { m_resumed.erase(linkIndex); }

private:
    const QStringList m_interfaceNames;
    std::set<int> m_resumed;
};

} // namespace recorder
