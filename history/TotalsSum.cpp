// SPDX-License-Identifier: MIT
#include "TotalsSum.h"

#include "ConnectionTable.h"
#include "StoreFailure.h"

namespace history
{

TotalsSum::TotalsSum(std::string path, bool tellsProfilesApart)
    : m_path(std::move(path))
    , m_tellsProfilesApart(tellsProfilesApart)
{
}

void TotalsSum::add(const ConnectionRow &row, int period)
{
    const std::string profile(m_tellsProfilesApart ? row.get<&Connection::profile>()
                                                   : std::string_view());
    Totals &totals = m_groups[{profile, period}];
    ++totals.connections;
    increase(totals.connectedSeconds, row.get<&Connection::connectedSeconds>(),
             "seconds connected");
    increase(totals.uploadedBytes, row.get<&Connection::uploadedBytes>(), "bytes sent");
    increase(totals.downloadedBytes, row.get<&Connection::downloadedBytes>(), "bytes received");
}

std::vector<Totals> TotalsSum::groups() const
{
    std::vector<Totals> groups;
    groups.reserve(m_groups.size());
    for (const auto &[key, totals] : m_groups) {
        groups.push_back(totals);
        groups.back().profile = key.first;
        groups.back().period = key.second;
    }
    return groups;
}

void TotalsSum::increase(std::int64_t &sum, std::int64_t amount, const char *what) const
{
    if (__builtin_add_overflow(sum, amount, &sum))
        throw StoreFailure(
            StoreError::Kind::SumTooLarge,
            historyAt(m_path) + " holds more " + what + " than can be added up: the sum is past " +
                std::to_string(std::numeric_limits<std::int64_t>::max()) +
                "; ask for a shorter time, or for each profile or month on its own.");
}

} // namespace history
