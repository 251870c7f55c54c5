// SPDX-License-Identifier: MIT
#include "StoreSamples.h"

#include "StoreErrorNames.h"
#include "history/SchemaUpgrade.h"

#include <QFile>
#include <QStringList>
#include <QtGlobal>

#include <SQLiteCpp/Database.h>

using history::Connection;
using history::Result;
using history::Store;

namespace
{

template <typename Value, typename Describe>
QString outcome(const Result<Value> &result, Describe describe)
{
    return result ? describe(result.value()) : QString::fromLatin1(nameOf(result.error().kind));
}

QString profilesOf(const std::vector<Connection> &connections)
{
    QStringList profiles;
    for (const Connection &each : connections)
        profiles.append(QString::fromStdString(each.profile));
    return profiles.join(QLatin1Char(' '));
}

} // namespace

Connection connection(const std::string &profile, std::int64_t start, std::int64_t end)
{
    Connection result;
    result.profile = profile;
    result.startUtc = start;
    result.endUtc = end;
    result.connectedSeconds = end - start;
    return result;
}

std::vector<Connection> numberedConnections(int count)
{
    std::vector<Connection> connections;
    connections.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        connections.push_back(connection(std::to_string(i), 1000 + i * 10, 1005 + i * 10));
    return connections;
}

Store storeWith(const std::string &path, const std::vector<Connection> &connections)
{
    auto store = Store::openOrCreate(path);
    if (!store)
        qFatal("%s", store.error().message.c_str());
    for (const Connection &each : connections) {
        const auto added = store.value().add(each);
        if (!added)
            qFatal("%s", added.error().message.c_str());
    }
    return std::move(store.value());
}

void makeStore(const std::string &path)
{
    storeWith(path, numberedConnections(300));
}

void makeStoreOfVersion(const std::string &path, int version)
{
    SQLite::Database database(path, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    const auto &steps = history::storeSchema();
    history::upgradeSchema(path, database, {steps.begin(), steps.begin() + version});
    database.exec("PRAGMA journal_mode = WAL");
}

QString profilesIn(const std::string &path)
{
    const auto store = Store::openForReading(path);
    return store ? outcomeOf(store.value().list()) : outcomeOf(store);
}

QString outcomeOf(const Result<std::int64_t> &result)
{
    return outcome(result, [](std::int64_t value) { return QString::number(value); });
}

QString outcomeOf(const Result<std::size_t> &result)
{
    return outcome(result, [](std::size_t value) { return QString::number(value); });
}

QString outcomeOf(const Result<std::vector<Connection>> &result)
{
    return outcome(result, profilesOf);
}

QString outcomeOf(const Result<Store> &result)
{
    return outcome(result, [](const Store &) { return QStringLiteral("open"); });
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

void writeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write %s", qPrintable(path));
}

void runSql(const std::string &path, const std::string &sql)
{
    SQLite::Database(path, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE).exec(sql);
}

int versionOf(const std::string &path)
{
    return SQLite::Database(path).execAndGet("PRAGMA user_version").getInt();
}
