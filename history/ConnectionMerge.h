// SPDX-License-Identifier: MIT
#pragma once

#include "Store.h"

#include <cstdint>
#include <vector>

namespace history
{

/// Finds out which of the connections read from a log are in the store already,
/// see Store::merge.
class ConnectionMerge
{
public:
    /// `given` has to outlive this.
    explicit ConnectionMerge(const std::vector<Connection> &given);

    /// Whether a stored connection may be one of the given ones.
    bool concerns(const Connection &stored) const;

    /// For each given connection the one of `stored` that it is, or null.
    std::vector<const Connection *> pairsAmong(const std::vector<Connection> &stored) const;

private:
    /// In the order of what tells them apart.
    std::vector<const Connection *> m_given;
    const Connection *m_first;
};

} // namespace history
