// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <random>

/// How long a campaign runs and what makes it the same one again. Both come from
/// the environment: NETINFORECORD_COUNT and NETINFORECORD_SEED.
namespace campaign
{

/// How many cases to try: the short form's number unless another one is asked for.
int count(int shortForm);

/// The seed asked for, else this one. Printed, so that a failure can be repeated.
std::uint64_t seed(std::uint64_t usual);

/// Numbers that are the same for the same seed on every system, which the
/// standard library's distributions do not promise.
class Random
{
public:
    explicit Random(std::uint64_t seed)
        : m_engine(seed)
    {
    }

    /// From 0 up to `limit`, which is outside and positive.
    int below(int limit)
    {
        return static_cast<int>(m_engine() % static_cast<std::uint64_t>(limit));
    }
    /// From `first` to `last`, both included.
    int between(int first, int last) { return first + below(last - first + 1); }
    /// True once in `times` on average.
    bool once(int times) { return below(times) == 0; }

    template <typename Container>
    auto oneOf(const Container &values)
    {
        return values[static_cast<std::size_t>(below(static_cast<int>(std::size(values))))];
    }

private:
    std::mt19937_64 m_engine;
};

} // namespace campaign
