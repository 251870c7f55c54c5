// SPDX-License-Identifier: MIT
#include "Fingerprint.h"

#include <functional>
#include <string_view>

namespace history
{

namespace
{

/// Spreads each bit over the whole number (the last steps of SplitMix64), so that
/// sums of such numbers do not cancel out.
std::uint64_t spread(std::uint64_t value)
{
    value = (value ^ (value >> 30U)) * 0xbf58476d1ce4e5b9U;
    value = (value ^ (value >> 27U)) * 0x94d049bb133111ebU;
    return value ^ (value >> 31U);
}

class Fingerprint
{
public:
    Fingerprint &operator<<(std::int64_t value)
    {
        m_value = spread(m_value + 0x9e3779b97f4a7c15U + static_cast<std::uint64_t>(value));
        return *this;
    }
    Fingerprint &operator<<(std::string_view text)
    {
        const auto hash = text.empty() ? 0 : std::hash<std::string_view>()(text);
        return *this << static_cast<std::int64_t>(hash);
    }

    std::uint64_t value() const { return m_value; }

private:
    std::uint64_t m_value = 0;
};

template <typename Fields>
Fingerprint contentsOf(const Connection &connection, const Fields &fields)
{
    Fingerprint fingerprint;
    forEachField(fields, [&](const auto &field) { fingerprint << connection.*field.member; });
    return fingerprint;
}

} // namespace

std::uint64_t fingerprintOf(const ConnectionRow &row)
{
    Fingerprint fingerprint;
    row.forEachValue([&](const auto &value) { fingerprint << value; });
    return (fingerprint << row.key()).value();
}

std::uint64_t fingerprintOf(const Connection &connection)
{
    return (contentsOf(connection, connectionFields) << connection.key).value();
}

std::uint64_t identityFingerprintOf(const Connection &connection)
{
    return contentsOf(connection, identifyingFields).value();
}

} // namespace history
