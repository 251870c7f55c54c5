// SPDX-License-Identifier: MIT
#include "PluginContainer.h"

#include <algorithm>

namespace refhost
{

void PluginContainer::add(const QString &classId, QObject *plugin, std::optional<int> type)
{
    const auto known = std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry &entry) {
        return entry.classId == classId && entry.type == type;
    });
    if (known != m_entries.end())
        known->plugin = plugin;
    else
        m_entries.push_back({classId, type, plugin});
}

QObject *PluginContainer::GetPlugin(const QString &classId, int type)
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry &entry) {
        return entry.plugin && entry.classId == classId && entry.type.value_or(type) == type;
    });
    return found != m_entries.end() ? found->plugin.data() : nullptr;
}

} // namespace refhost
