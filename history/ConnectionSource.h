// SPDX-License-Identifier: MIT
#pragma once

#include "Connection.h"
#include "ConnectionSelection.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

namespace history
{

/// Gives connections one after the other, as often as they are asked for anew.
class ConnectionSource
{
public:
    virtual ~ConnectionSource() = default;

    virtual std::size_t size() const = 0;
    /// In which all of them start; an empty one if there are none.
    virtual TimeRange starts() const = 0;
    /// Goes before the first one.
    virtual void rewind() = 0;
    /// Puts the next one into `connection`; false if there is none, which leaves it as it is.
    virtual bool next(Connection &connection) = 0;
};

/// What no connection starts in.
constexpr TimeRange noTime = {std::numeric_limits<std::int64_t>::max(),
                              std::numeric_limits<std::int64_t>::min()};

/// `range`, or more if the connection does not start in it.
inline TimeRange withStartOf(const Connection &connection, const TimeRange &range)
{
    return {std::min(range.fromUtc, connection.startUtc),
            std::max(range.untilUtc, connection.startUtc + 1)};
}

/// Those of a list.
class ListedConnections : public ConnectionSource
{
public:
    explicit ListedConnections(const std::vector<Connection> &connections)
        : m_connections(connections)
    {
    }

    std::size_t size() const override { return m_connections.size(); }
    TimeRange starts() const override
    {
        TimeRange range = noTime;
        for (const Connection &each : m_connections)
            range = withStartOf(each, range);
        return range;
    }
    void rewind() override { m_next = 0; }
    bool next(Connection &connection) override
    {
        if (m_next == m_connections.size())
            return false;
        connection = m_connections[m_next++];
        return true;
    }

private:
    const std::vector<Connection> &m_connections;
    std::size_t m_next = 0;
};

} // namespace history
