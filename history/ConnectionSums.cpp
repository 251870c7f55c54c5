// SPDX-License-Identifier: MIT
#include "ConnectionSums.h"

#include "RowQuery.h"
#include "StoreFailure.h"

#include <SQLiteCpp/Exception.h>

#include <sqlite3.h>

#include <map>
#include <tuple>

namespace history
{

namespace
{

/// A sum that 64 bits do not hold.
class SumTooLarge
{
};

void increase(std::int64_t &sum, std::int64_t amount)
{
    if (__builtin_add_overflow(sum, amount, &sum))
        throw SumTooLarge();
}

/// The sums of finished and of open connections together.
class Sums
{
public:
    explicit Sums(SQLite::Database &database)
        : m_database(database)
    {
    }

    void add(const std::string &table)
    {
        addConnections(table);
        moveRoamingBytes(table);
    }
    std::vector<ConnectionSum> all() const;

private:
    void addConnections(const std::string &table);
    void moveRoamingBytes(const std::string &table);
    ConnectionSum &of(const Row &row, bool isRoaming);

    SQLite::Database &m_database;
    std::map<std::tuple<std::string, std::string, bool>, ConnectionSum> m_sums;
};

std::vector<ConnectionSum> Sums::all() const
{
    std::vector<ConnectionSum> sums;
    sums.reserve(m_sums.size());
    for (const auto &[group, sum] : m_sums)
        sums.push_back(sum);
    return sums;
}

/// Their bytes at first as if all had been moved at home.
void Sums::addConnections(const std::string &table)
{
    RowQuery query(m_database, std::string("SELECT profile, sim, roaming = '") + abroad +
                                   "', count(*), sum(connected_seconds), sum(uploaded_bytes),"
                                   " sum(downloaded_bytes) FROM " +
                                   table + " GROUP BY 1, 2, 3");
    while (query.next()) {
        const Row row = query.row();
        ConnectionSum &begun = of(row, row.integer(2) != 0);
        increase(begun.connections, row.integer(3));
        increase(begun.connectedSeconds, row.integer(4));
        ConnectionSum &home = of(row, false);
        increase(home.uploadedBytes, row.integer(5));
        increase(home.downloadedBytes, row.integer(6));
    }
}

/// Hours add up to their connection, so what was not moved roaming was moved at home.
void Sums::moveRoamingBytes(const std::string &table)
{
    RowQuery query(m_database, "SELECT profile, sim, sum(h.uploaded_bytes),"
                               " sum(h.downloaded_bytes) FROM " +
                                   table + "_hour h JOIN " + table +
                                   " c ON c.key = h.connection WHERE h.is_roaming GROUP BY 1, 2");
    while (query.next()) {
        const Row row = query.row();
        ConnectionSum &home = of(row, false);
        increase(home.uploadedBytes, -row.integer(2));
        increase(home.downloadedBytes, -row.integer(3));
        ConnectionSum &roaming = of(row, true);
        increase(roaming.uploadedBytes, row.integer(2));
        increase(roaming.downloadedBytes, row.integer(3));
    }
}

ConnectionSum &Sums::of(const Row &row, bool isRoaming)
{
    const std::string profile(row.text(0));
    const std::string sim(row.text(1));
    ConnectionSum &sum = m_sums[{profile, sim, isRoaming}];
    sum.profile = profile;
    sum.sim = sim;
    sum.isRoaming = isRoaming;
    return sum;
}

StoreFailure sumTooLarge(const std::string &path)
{
    return {StoreError::Kind::BadRecord,
            historyAt(path) + " holds more bytes or seconds than can be added up in 64 bits; "
                              "connrecord list shows the records, remove those that are wrong."};
}

/// What SQLite says of a sum of its own.
bool isOverflow(const SQLite::Exception &exception)
{
    return exception.getErrorCode() == SQLITE_ERROR &&
           std::string(exception.what()).find("integer overflow") != std::string::npos;
}

} // namespace

std::vector<ConnectionSum> connectionSums(SQLite::Database &database, const std::string &path)
{
    try {
        Sums sums(database);
        sums.add("connection");
        sums.add("open_connection");
        return sums.all();
    } catch (const SumTooLarge &) {
        throw sumTooLarge(path);
    } catch (const SQLite::Exception &exception) {
        if (isOverflow(exception))
            throw sumTooLarge(path);
        throw;
    }
}

} // namespace history
