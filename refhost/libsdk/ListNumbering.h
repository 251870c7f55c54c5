// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace refhost
{

/// What the indices of the list last handed out mean. An index is a place in
/// that list, so removals do not shift it; the place of a record that is known to
/// be gone stands for the first one after it that is not.
class ListNumbering
{
public:
    /// Starts over with the keys of a new list.
    void assign(std::vector<std::int64_t> keys);

    std::size_t size() const { return m_keys.size(); }
    std::int64_t keyAt(std::size_t place) const { return m_keys[place]; }

    /// The first place from `place` on whose record is not known to be gone;
    /// size() if there is none. The cost hardly grows with the list, however
    /// many records are gone.
    std::size_t firstFrom(std::size_t place);
    void markGone(std::size_t place) { m_next[place] = place + 1; }

private:
    std::vector<std::int64_t> m_keys;
    /// A disjoint-set forest: a place that is still there points to itself, one
    /// that is gone to a later place; the last element stands for "none".
    std::vector<std::size_t> m_next;
};

} // namespace refhost
