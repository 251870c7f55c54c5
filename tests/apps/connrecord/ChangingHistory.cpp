// SPDX-License-Identifier: MIT
#include "ChangingHistory.h"

#include "SampleHistory.h"

#include <array>
#include <utility>

using namespace history;

namespace
{

constexpr std::int64_t firstHour = 1717372800;

/// The value, which has to be there.
template <typename T>
T valueOf(Result<T> result)
{
    if (!result)
        qFatal("%s", result.error().message.c_str());
    return std::move(result.value());
}

} // namespace

ChangingHistory::ChangingHistory(const std::string &path, unsigned seed)
    : m_store(valueOf(Store::openOrCreate(path)))
    , m_random(seed)
{
}

void ChangingHistory::change()
{
    using Change = void (ChangingHistory::*)();
    constexpr std::array<Change, 6> changes = {
        &ChangingHistory::begin,      &ChangingHistory::move,     &ChangingHistory::finish,
        &ChangingHistory::importLate, &ChangingHistory::complete, &ChangingHistory::remove};
    ++m_steps;
    (this->*changes.at(m_random() % changes.size()))();
}

std::multiset<int> ChangingHistory::sent() const
{
    std::multiset<int> bytes;
    for (const Connection &connection : valueOf(m_store.list()))
        bytes.insert(static_cast<int>(connection.uploadedBytes));
    for (const OpenConnection &connection : valueOf(m_store.listOpen()))
        bytes.insert(static_cast<int>(connection.uploadedBytes));
    return bytes;
}

void ChangingHistory::begin()
{
    OpenConnection open;
    open.bootId = "boot";
    open.interfaceIndex = m_steps;
    open.profile = "internet";
    open.startUtc = firstHour + m_steps;
    open.updatedUtc = open.startUtc;
    open.key = valueOf(m_store.begin(open)).key;
    m_open.push_back(open);
}

void ChangingHistory::move()
{
    for (OpenConnection &open : m_open) {
        open.uploadedBytes += m_steps;
        open.updatedUtc += m_steps;
        open.hours = {{firstHour, true, open.uploadedBytes, 0}};
        valueOf(m_store.checkpoint(open));
    }
}

void ChangingHistory::finish()
{
    if (m_open.empty())
        return;
    Connection finished;
    static_cast<ConnectionBase &>(finished) = m_open.back();
    finished.endUtc = m_open.back().updatedUtc;
    valueOf(m_store.finish(m_open.back(), finished));
    m_open.pop_back();
}

void ChangingHistory::importLate()
{
    valueOf(m_store.addMissing({sampleConnection("late", 1600000000 - m_steps, 60, m_steps, 0)}));
}

void ChangingHistory::complete()
{
    Connection logged = anyConnection();
    if (logged.key == 0)
        return;
    logged.profile += 'x';
    valueOf(m_store.merge({logged}, [&logged](Connection &stored, std::size_t) {
        stored.profile = logged.profile;
        return true;
    }));
}

void ChangingHistory::remove()
{
    const std::int64_t key = anyConnection().key;
    if (key != 0)
        valueOf(m_store.remove({key}));
}

Connection ChangingHistory::anyConnection()
{
    const auto connections = valueOf(m_store.list());
    return connections.empty() ? Connection() : connections[m_random() % connections.size()];
}
