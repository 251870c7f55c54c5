// SPDX-License-Identifier: MIT
#include "ScriptedHost.h"

#include <algorithm>

namespace scripted
{

namespace
{
template <std::size_t Size>
void fill(char (&field)[Size], const QByteArray &text)
{
    std::copy_n(text.constData(), std::min<std::size_t>(Size, text.size()), field);
}
} // namespace

Host &Host::instance()
{
    static Host host;
    return host;
}

void Host::reset()
{
    const int stillOpen = openArrays;
    *this = Host();
    openArrays = stillOpen;
}

_KORA_ST_CONNRECORD record(const QString &profile, const QByteArray &start, const QByteArray &end,
                           const QByteArray &duration, const QByteArray &uploaded,
                           const QByteArray &downloaded, const QByteArray &extra1,
                           const QByteArray &extra2)
{
    _KORA_ST_CONNRECORD result = {};
    std::copy_n(reinterpret_cast<const char16_t *>(profile.utf16()),
                std::min<int>(128, profile.size()), result.szProfileName);
    fill(result.szStartTime, start);
    fill(result.szEndTime, end);
    fill(result.szDuration, duration);
    fill(result.szUploadBytes, uploaded);
    fill(result.szDownloadBytes, downloaded);
    fill(result.szExtraText1, extra1);
    fill(result.szExtraText2, extra2);
    return result;
}

} // namespace scripted
