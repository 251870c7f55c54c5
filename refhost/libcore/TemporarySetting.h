// SPDX-License-Identifier: MIT
#pragma once

#include "HostApi.h"

#include <QString>

namespace refhost
{

/// While it lives, CommonUtils::GetSettings answers with this value for the key;
/// nothing is stored. One at a time for a key, on the GUI thread.
class HOST_API TemporarySetting
{
public:
    TemporarySetting(const QString &group, const QString &key, const QString &value);
    TemporarySetting(const TemporarySetting &) = delete;
    TemporarySetting &operator=(const TemporarySetting &) = delete;
    ~TemporarySetting();

private:
    const QString m_group;
    const QString m_key;
};

} // namespace refhost
