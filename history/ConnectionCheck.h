// SPDX-License-Identifier: MIT
#pragma once

#include "ConnectionSource.h"

#include <vector>

namespace history
{

/// Throw StoreFailure if a value is outside its range.
void check(const Connection &connection);
void check(const OpenConnection &connection);
void check(const std::vector<Connection> &connections);

/// Those of another source, each of which is checked before it is given.
class CheckedConnections : public ConnectionSource
{
public:
    explicit CheckedConnections(ConnectionSource &source)
        : m_source(source)
    {
    }

    std::size_t size() const override { return m_source.size(); }
    TimeRange starts() const override { return m_source.starts(); }
    void rewind() override;
    bool next(Connection &connection) override;

private:
    ConnectionSource &m_source;
    std::size_t m_given = 0;
};

} // namespace history
