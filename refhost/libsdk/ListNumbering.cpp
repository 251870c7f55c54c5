// SPDX-License-Identifier: MIT
#include "ListNumbering.h"

#include <numeric>
#include <utility>

namespace refhost
{

void ListNumbering::assign(std::vector<std::int64_t> keys)
{
    std::vector<std::size_t> next(keys.size() + 1);
    std::iota(next.begin(), next.end(), std::size_t{0});
    m_keys = std::move(keys);
    m_next = std::move(next);
}

std::size_t ListNumbering::firstFrom(std::size_t place)
{
    // Each place passed is pointed further on, which shortens the next walk.
    while (m_next[place] != place) {
        m_next[place] = m_next[m_next[place]];
        place = m_next[place];
    }
    return place;
}

} // namespace refhost
