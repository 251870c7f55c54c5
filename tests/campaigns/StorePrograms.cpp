// SPDX-License-Identifier: MIT
#include "StorePrograms.h"

#include "RecordedConnection.h"

#include <fcntl.h>
#include <sys/stat.h>

using namespace history;

namespace
{

QString textOf(const StoreError &error)
{
    return QString::fromStdString(error.message);
}

/// Whether it asks the user to vouch for a log that was being played when the power failed.
bool asksForTouch(const StoreError &error)
{
    return error.kind == StoreError::Kind::CannotOpen &&
           error.message.find("touch the log") != std::string::npos;
}

QString take(std::optional<Store> &store, Result<Store> opened)
{
    if (!opened)
        return textOf(opened.error());
    store = std::move(opened.value());
    return {};
}

} // namespace

QString StorePrograms::run()
{
    QString complaint = start();
    while (complaint.isEmpty())
        complaint = m_random.once(15) ? restart() : change();
    end();
    return m_disk.isOff() ? QString() : complaint;
}

QString StorePrograms::start()
{
    Result<Store> opened = Store::openForRecording(m_path);
    if (!opened && asksForTouch(opened.error())) {
        ++m_touched;
        utimensat(AT_FDCWD, (m_path + "-wal").c_str(), nullptr, 0);
        opened = Store::openForRecording(m_path);
    }
    QString complaint = take(m_recorder, std::move(opened));
    if (complaint.isEmpty())
        complaint = m_kept.complaint(*m_recorder);
    return complaint.isEmpty() ? take(m_window, Store::openOrCreate(m_path)) : complaint;
}

void StorePrograms::end()
{
    m_recorder.reset();
    m_window.reset();
}

QString StorePrograms::restart()
{
    end();
    if (!m_disk.isOff())
        m_kept.keep();
    return start();
}

QString StorePrograms::change()
{
    const auto &open = m_kept.latest().open;
    switch (m_random.below(open.empty() ? 4 : 7)) {
    case 0:
        return begin();
    case 1:
        return add();
    case 2:
        return import();
    case 3:
        return remove();
    case 4:
        return finish(open.begin()->first);
    default:
        return checkpoint(open.begin()->first);
    }
}

QString StorePrograms::begin()
{
    State next = m_kept.latest();
    next.open.emplace(++m_number, 0);
    return record(next, [&] { return m_recorder->begin(begunConnection(m_number)); });
}

QString StorePrograms::checkpoint(std::int64_t number)
{
    State next = m_kept.latest();
    OpenConnection open = openConnection(number);
    open.uploadedBytes = ++next.open.at(number);
    open.updatedUtc = number + open.uploadedBytes;
    return record(next, [&] { return m_recorder->checkpoint(open); });
}

QString StorePrograms::finish(std::int64_t number)
{
    State next = m_kept.latest();
    next.open.erase(number);
    next.finished.insert(number);
    return record(next, [&] {
        return m_recorder->finish(openConnection(number), finishedConnection(number));
    });
}

QString StorePrograms::add()
{
    State next = m_kept.latest();
    next.finished.insert(++m_number);
    return record(next, [&] { return m_recorder->add(finishedConnection(m_number)); });
}

QString StorePrograms::import()
{
    State next = m_kept.latest();
    std::vector<Connection> connections;
    for (int left = m_random.between(1, 40); left > 0; --left) {
        connections.push_back(finishedConnection(++m_number));
        next.finished.insert(m_number);
    }
    return attempt(next, [&] { return m_window->addMissing(connections); });
}

QString StorePrograms::remove()
{
    State next = m_kept.latest();
    const auto list = m_window->list();
    if (!list)
        return textOf(list.error());
    std::vector<std::int64_t> keys;
    for (const Connection &connection : list.value()) {
        if (m_random.once(2))
            continue;
        keys.push_back(connection.key);
        next.finished.erase(connection.startUtc);
    }
    return attempt(next, [&] { return m_window->remove(keys); });
}

/// With the key that the store has given it.
OpenConnection StorePrograms::openConnection(std::int64_t number) const
{
    OpenConnection wanted = begunConnection(number);
    if (const auto open = m_recorder->listOpen()) {
        for (const OpenConnection &each : open.value()) {
            if (each.startUtc == number)
                wanted.key = each.key;
        }
    }
    return wanted;
}

template <typename Operation>
QString StorePrograms::record(const State &next, Operation operation)
{
    QString complaint = attempt(next, operation);
    if (complaint.isEmpty())
        m_kept.keep();
    return complaint;
}

template <typename Operation>
QString StorePrograms::attempt(const State &next, Operation operation)
{
    m_kept.change(next);
    const auto result = operation();
    return result ? QString() : textOf(result.error());
}
