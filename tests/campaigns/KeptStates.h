// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"

#include <QString>

#include <cstdint>
#include <map>
#include <set>
#include <vector>

/// What a store that is on a disk without power may hold when the power is back: what it
/// held when it last told that its changes are kept, or after any of the changes since.
class KeptStates
{
public:
    struct State {
        std::set<std::int64_t> finished;
        std::map<std::int64_t, std::int64_t> open; ///< with the last update

        bool operator==(const State &other) const
        {
            return finished == other.finished && open == other.open;
        }
    };

    /// What there is if no power fails.
    const State &latest() const { return m_states.back(); }
    /// A change to that is begun.
    void change(const State &next) { m_states.push_back(next); }
    /// All changes so far are kept.
    void keep() { keepOnly(m_states.size() - 1); }

    /// What is wrong with the store; empty if nothing is, and it holds one of those
    /// states, which is then the one that is kept.
    QString complaint(const history::Store &store);

private:
    void keepOnly(std::size_t index);

    std::vector<State> m_states = {State()};
};
