// SPDX-License-Identifier: MIT
#include "recorder/bus/ConnectionValues.h"

#include "history/Store.h"
#include "recorder/ConnectionState.h"

namespace recorder
{

namespace
{

namespace keys
{

constexpr QLatin1String id("Id");
constexpr QLatin1String profile("Profile");
constexpr QLatin1String interfaceName("Interface");
constexpr QLatin1String since("Since");
constexpr QLatin1String until("Until");
constexpr QLatin1String connectedSeconds("ConnectedSeconds");
constexpr QLatin1String uploadedBytes("UploadedBytes");
constexpr QLatin1String downloadedBytes("DownloadedBytes");
constexpr QLatin1String uploadRate("UploadRate");
constexpr QLatin1String downloadRate("DownloadRate");
constexpr QLatin1String ending("Ending");

} // namespace keys

QVariant number(std::int64_t value)
{
    return QVariant::fromValue<qlonglong>(value);
}

} // namespace

QVariantMap valuesOf(const ConnectionState &state)
{
    return {{keys::id, number(state.id)},
            {keys::profile, state.profile},
            {keys::interfaceName, state.interfaceName},
            {keys::since, number(state.since.toSecsSinceEpoch())},
            {keys::uploadedBytes, number(state.uploadedBytes)},
            {keys::downloadedBytes, number(state.downloadedBytes)},
            {keys::uploadRate, number(state.uploadRate)},
            {keys::downloadRate, number(state.downloadRate)}};
}

QVariantMap valuesOf(const history::Connection &connection)
{
    return {{keys::profile, QString::fromStdString(connection.profile)},
            {keys::interfaceName, QString::fromStdString(connection.interfaceName)},
            {keys::since, number(connection.startUtc)},
            {keys::until, number(connection.endUtc)},
            {keys::connectedSeconds, number(connection.connectedSeconds)},
            {keys::uploadedBytes, number(connection.uploadedBytes)},
            {keys::downloadedBytes, number(connection.downloadedBytes)},
            {keys::ending, QString::fromStdString(connection.ending)}};
}

QVariantMap identityIn(const QVariantMap &values)
{
    QVariantMap identity = values;
    for (const QLatin1String key :
         {keys::uploadedBytes, keys::downloadedBytes, keys::uploadRate, keys::downloadRate})
        identity.remove(key);
    return identity;
}

} // namespace recorder
