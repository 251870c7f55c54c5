// SPDX-License-Identifier: MIT
#include "YearsOfHistory.h"

#include "ConnrecordRun.h"
#include "history/Store.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QDateTime>

#include <random>
#include <vector>

using history::Connection;
using history::Store;

namespace
{

constexpr int years = 3;
constexpr std::int64_t hour = 3600;
constexpr std::int64_t twoTo53 = 9007199254740992;

const char *const profiles[] = {"internet",         "Internet", "INTERNET", "internet.example",
                                "IDS_COMBO_ALLAPN", "",         "all",      "\xC3\xBC"};

/// Makes the same connections in each run.
class ConnectionMaker
{
public:
    Connection startingAt(std::int64_t utc)
    {
        Connection made;
        made.profile = profiles[upTo(std::size(profiles) - 1)];
        made.startUtc = utc;
        made.endUtc = utc + upTo(upTo(20) == 0 ? 100 * hour : 5 * hour);
        made.connectedSeconds = made.endUtc - utc;
        made.uploadedBytes = bytes();
        made.downloadedBytes = bytes();
        return made;
    }
    std::int64_t upTo(std::int64_t most) { return std::int64_t(m_random() % (most + 1)); }

private:
    // Few enough large ones that all of them can be added up.
    std::int64_t bytes() { return (upTo(60) == 0 ? twoTo53 : 0) + upTo(10000000000); }

    std::mt19937_64 m_random{20241027};
};

std::int64_t startOf(const QDate &day)
{
    return QDateTime(day, QTime(0, 0)).toSecsSinceEpoch();
}

std::vector<Connection> connectionsFrom(const QDate &firstDay)
{
    ConnectionMaker maker;
    std::vector<Connection> connections;
    const std::int64_t end = startOf(firstDay.addYears(years));
    for (std::int64_t utc = startOf(firstDay); utc < end; utc += maker.upTo(16 * hour))
        connections.push_back(maker.startingAt(utc));
    for (int month = 0; month <= 12 * years; ++month) {
        const std::int64_t turn = startOf(firstDay.addMonths(month));
        for (const std::int64_t difference :
             {-hour, -hour / 2, std::int64_t(-1), std::int64_t(0), hour / 2, hour})
            connections.push_back(maker.startingAt(turn + difference));
    }
    return connections;
}

history::OpenConnection openConnection(std::int64_t startUtc)
{
    history::OpenConnection open;
    open.bootId = "boot";
    open.interfaceIndex = 3;
    open.profile = profiles[0];
    open.startUtc = startUtc;
    open.uploadedBytes = 1000;
    open.updatedUtc = startUtc;
    return open;
}

QStringList rowsOfStatement(SQLite::Statement &statement)
{
    QStringList rows;
    while (statement.executeStep()) {
        QStringList values;
        for (int i = 0; i < statement.getColumnCount(); ++i)
            values.append(QString::fromStdString(statement.getColumn(i).getString()));
        rows.append(values.join(QLatin1Char('|')));
    }
    return rows;
}

/// The database's own reader of JSON keeps 64-bit integers in each version of Qt.
QStringList rowsOfJson(const QByteArray &json, const QStringList &keys)
{
    const SQLite::Database memory(":memory:");
    SQLite::Statement statement(memory, "SELECT value ->> '" +
                                            keys.join("', value ->> '").toStdString() +
                                            "' FROM json_each(?)");
    statement.bind(1, json.toStdString());
    return rowsOfStatement(statement);
}

} // namespace

YearsOfHistory::YearsOfHistory(const char *zone, int firstYear)
    : m_zone(zone)
{
    const QDate firstDay(firstYear, 1, 1);
    auto store = Store::openOrCreate(m_store.path());
    if (!store || !store.value().addMissing(connectionsFrom(firstDay)) ||
        !store.value().begin(openConnection(startOf(firstDay))))
        qFatal("%s cannot be filled", m_store.path().c_str());
}

QStringList YearsOfHistory::totalsTold(const QStringList &options, const QStringList &keys)
{
    const ConnrecordRun run = connrecord(QStringList{"totals", "--json"} + options);
    if (run.exitCode != 0)
        return {QString::fromUtf8(run.error)};
    return rowsOfJson(run.output, keys);
}

QStringList YearsOfHistory::rowsOf(const std::string &query) const
{
    const SQLite::Database database(m_store.path());
    SQLite::Statement statement(database, query);
    return rowsOfStatement(statement);
}
