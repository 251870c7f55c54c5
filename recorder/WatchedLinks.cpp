// SPDX-License-Identifier: MIT
#include "WatchedLinks.h"

#include <algorithm>

namespace recorder
{

WatchedLinks::WatchedLinks(const QStringList &interfaceNames)
    : m_interfaceNames(interfaceNames)
{
}

bool WatchedLinks::contains(const Link &link) const
{
    const auto isItsName = [&link](const QString &name) {
        return link.hasName(name.toStdString());
    };
    return link.isMobile() || m_resumed.count(link.index) != 0 ||
           std::any_of(m_interfaceNames.begin(), m_interfaceNames.end(), isItsName);
}

} // namespace recorder
