// SPDX-License-Identifier: MIT
#include "TemporarySetting.h"

#include "HostState.h"

namespace refhost
{

TemporarySetting::TemporarySetting(const QString &group, const QString &key, const QString &value)
    : m_group(group)
    , m_key(key)
{
    hostState().temporarySettings.insert({group, key}, value);
}

TemporarySetting::~TemporarySetting()
{
    hostState().temporarySettings.remove({m_group, m_key});
}

} // namespace refhost
