// SPDX-License-Identifier: MIT
#pragma once

#include "Store.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace history
{

class ConnectionRow;

/// Adds up connections by profile and period; see Store::totals.
class TotalsSum
{
public:
    /// For the history in `path`, which errors name.
    TotalsSum(std::string path, bool tellsProfilesApart);

    /// Takes a connection into the totals of its profile and `period`. Throws
    /// StoreFailure if a sum leaves 64 bits.
    void add(const ConnectionRow &row, int period);

    std::vector<Totals> groups() const;

private:
    void increase(std::int64_t &sum, std::int64_t amount, const char *what) const;

    std::string m_path;
    bool m_tellsProfilesApart;
    std::map<std::pair<std::string, int>, Totals> m_groups;
};

} // namespace history
