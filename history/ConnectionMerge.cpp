// SPDX-License-Identifier: MIT
#include "ConnectionMerge.h"

#include "ConnectionFields.h"

#include <algorithm>
#include <map>
#include <string>
#include <tuple>

namespace history
{

namespace
{

/// What a connection's end in a log always tells, however much of its beginning
/// the log has lost.
auto identity(const Connection &connection)
{
    return std::tie(connection.endUtc, connection.connectedSeconds, connection.uploadedBytes,
                    connection.downloadedBytes);
}

/// By what its end tells, then by interface and start.
auto order(const Connection &connection)
{
    return std::tuple_cat(identity(connection),
                          std::tie(connection.interfaceName, connection.startUtc),
                          valuesOf(connection, identifyingFields));
}

bool comesBefore(const Connection *left, const Connection *right)
{
    return order(*left) < order(*right);
}

bool endsBefore(const Connection *left, const Connection *right)
{
    return identity(*left) < identity(*right);
}

using Pointers = std::vector<const Connection *>;
using Pairing = std::function<void(const Connection *given, const Connection *stored)>;

/// Pairs the given and the stored connections of one identity.
class Group
{
public:
    Group(Pointers given, Pointers stored)
        : m_given(std::move(given))
        , m_stored(std::move(stored))
    {
    }

    void pair(const Pairing &pairing)
    {
        pairEqual(pairing);
        for (const Connection *const stored : m_stored)
            m_byInterface[stored->interfaceName].push_back(stored);
        // Those that know their interface first: the others fit everywhere.
        pairByInterface(pairing);
        pairUnknown(pairing);
    }

private:
    /// Takes away what is equal in everything. Both are in order.
    void pairEqual(const Pairing &pairing)
    {
        Pointers given;
        Pointers stored;
        auto candidate = m_stored.begin();
        for (const Connection *const connection : m_given) {
            while (candidate != m_stored.end() && comesBefore(*candidate, connection))
                stored.push_back(*candidate++);
            if (candidate != m_stored.end() && isSame(**candidate, *connection))
                pairing(connection, *candidate++);
            else
                given.push_back(connection);
        }
        stored.insert(stored.end(), candidate, m_stored.end());
        m_given = std::move(given);
        m_stored = std::move(stored);
    }

    void pairByInterface(const Pairing &pairing)
    {
        for (const Connection *const connection : m_given) {
            if (connection->interfaceName.empty())
                continue;
            auto found = m_byInterface.find(connection->interfaceName);
            if (found == m_byInterface.end())
                found = m_byInterface.find(std::string());
            if (found != m_byInterface.end())
                pairing(connection, takeFrom(found));
        }
    }

    void pairUnknown(const Pairing &pairing)
    {
        for (const Connection *const connection : m_given) {
            if (connection->interfaceName.empty() && !m_byInterface.empty())
                pairing(connection, takeFrom(m_byInterface.begin()));
        }
    }

    const Connection *takeFrom(std::map<std::string, Pointers>::iterator entry)
    {
        const Connection *const taken = entry->second.back();
        entry->second.pop_back();
        if (entry->second.empty())
            m_byInterface.erase(entry);
        return taken;
    }

    Pointers m_given;
    Pointers m_stored;
    std::map<std::string, Pointers> m_byInterface; ///< no list of it is empty
};

Pointers inOrder(const std::vector<Connection> &connections)
{
    Pointers pointers;
    pointers.reserve(connections.size());
    for (const Connection &connection : connections)
        pointers.push_back(&connection);
    std::sort(pointers.begin(), pointers.end(), comesBefore);
    return pointers;
}

} // namespace

ConnectionMerge::ConnectionMerge(const std::vector<Connection> &given)
    : m_given(inOrder(given))
    , m_first(given.data())
{
}

bool ConnectionMerge::concerns(const Connection &stored) const
{
    return std::binary_search(m_given.begin(), m_given.end(), &stored, endsBefore);
}

Pointers ConnectionMerge::pairsAmong(const std::vector<Connection> &stored) const
{
    const Pointers candidates = inOrder(stored);
    Pointers pairs(m_given.size(), nullptr);
    const auto pair = [&](const Connection *given, const Connection *known) {
        pairs[static_cast<std::size_t>(given - m_first)] = known;
    };
    for (auto given = m_given.begin(); given != m_given.end();) {
        const auto end = std::upper_bound(given, m_given.end(), *given, endsBefore);
        const auto known =
            std::equal_range(candidates.begin(), candidates.end(), *given, endsBefore);
        Group({given, end}, {known.first, known.second}).pair(pair);
        given = end;
    }
    return pairs;
}

} // namespace history
