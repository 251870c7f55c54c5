// SPDX-License-Identifier: MIT
#include "recorder/bus/ConnectionValues.h"

#include "history/Store.h"
#include "modem/Names.h"
#include "recorder/ConnectionState.h"

namespace recorder
{

namespace
{

namespace keys
{

using modem::latin1;

constexpr QLatin1String id = latin1("Id");
constexpr QLatin1String profile = latin1("Profile");
constexpr QLatin1String interfaceName = latin1("Interface");
constexpr QLatin1String since = latin1("Since");
constexpr QLatin1String until = latin1("Until");
constexpr QLatin1String connectedSeconds = latin1("ConnectedSeconds");
constexpr QLatin1String uploadedBytes = latin1("UploadedBytes");
constexpr QLatin1String downloadedBytes = latin1("DownloadedBytes");
constexpr QLatin1String uploadRate = latin1("UploadRate");
constexpr QLatin1String downloadRate = latin1("DownloadRate");
constexpr QLatin1String ending = latin1("Ending");

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
