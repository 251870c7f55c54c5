// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>

namespace fuzz
{

/// Makes values of the bytes that the fuzzer gives; zeros once there are no more.
class ByteReader
{
public:
    ByteReader(const std::uint8_t *data, std::size_t size)
        : m_next(data)
        , m_end(data + size)
    {
    }

    bool isAtEnd() const { return m_next == m_end; }
    std::uint8_t byte() { return isAtEnd() ? 0 : *m_next++; }
    /// From 0 up to `limit`, which is outside.
    int below(int limit) { return byte() % limit; }
    /// Of that many bytes, the highest one first.
    std::int64_t number(int bytes)
    {
        std::uint64_t value = 0;
        for (int i = 0; i < bytes; ++i)
            value = value << 8U | byte();
        return static_cast<std::int64_t>(value);
    }
    /// At most that many bytes.
    std::string text(std::size_t size)
    {
        const auto *const begin = m_next;
        m_next += std::min<std::size_t>(size, static_cast<std::size_t>(m_end - m_next));
        return {begin, m_next};
    }
    std::string rest() { return text(static_cast<std::size_t>(m_end - m_next)); }

private:
    const std::uint8_t *m_next;
    const std::uint8_t *m_end;
};

} // namespace fuzz
