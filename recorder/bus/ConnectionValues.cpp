// SPDX-License-Identifier: MIT
#include "recorder/bus/ConnectionValues.h"

#include "history/Store.h"
#include "modem/DBusValue.h"
#include "modem/DataPort.h"
#include "modem/Names.h"
#include "recorder/ConnectionState.h"

#include <QDBusArgument>
#include <QTimeZone>

#include <algorithm>

namespace recorder
{

namespace
{

constexpr int longestText = 1000;
constexpr int mostConnections = 64;
constexpr qint64 latestTime = 253402300799; ///< the end of the year 9999

namespace keys
{

using modem::latin1;

constexpr QLatin1String id = latin1("Id");
constexpr QLatin1String profile = latin1("Profile");
constexpr QLatin1String interfaceName = latin1("Interface");
constexpr QLatin1String operatorName = latin1("Operator");
constexpr QLatin1String operatorCode = latin1("OperatorCode");
constexpr QLatin1String sim = latin1("Sim");
constexpr QLatin1String isRoaming = latin1("Roaming");
constexpr QLatin1String technology = latin1("Technology");
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

qint64 numberIn(const QVariant &value)
{
    return value.userType() == QMetaType::LongLong ? std::max<qint64>(value.toLongLong(), 0) : 0;
}

QString text(const std::string &value)
{
    return QString::fromStdString(value);
}

} // namespace

QVariantMap valuesOf(const ConnectionState &state)
{
    return {{keys::id, number(state.id)},
            {keys::profile, state.profile},
            {keys::interfaceName, state.interfaceName},
            {keys::operatorName, state.operatorName},
            {keys::operatorCode, state.operatorCode},
            {keys::sim, modem::shownPartOfSim(state.sim)},
            {keys::isRoaming, state.isRoaming},
            {keys::technology, state.technology},
            {keys::since, number(state.since.toSecsSinceEpoch())},
            {keys::uploadedBytes, number(state.uploadedBytes)},
            {keys::downloadedBytes, number(state.downloadedBytes)},
            {keys::uploadRate, number(state.uploadRate)},
            {keys::downloadRate, number(state.downloadRate)}};
}

QVariantMap valuesOf(const history::Connection &connection)
{
    return {{keys::profile, text(connection.profile)},
            {keys::interfaceName, text(connection.interfaceName)},
            {keys::operatorName, text(connection.operatorName)},
            {keys::operatorCode, text(connection.operatorCode)},
            {keys::sim, modem::shownPartOfSim(text(connection.sim))},
            {keys::isRoaming, connection.roaming == history::abroad},
            {keys::technology, text(connection.technology)},
            {keys::since, number(connection.startUtc)},
            {keys::until, number(connection.endUtc)},
            {keys::connectedSeconds, number(connection.connectedSeconds)},
            {keys::uploadedBytes, number(connection.uploadedBytes)},
            {keys::downloadedBytes, number(connection.downloadedBytes)},
            {keys::ending, text(connection.ending)}};
}

std::optional<ConnectionState> stateIn(const QVariantMap &values)
{
    ConnectionState state;
    state.id = numberIn(values.value(keys::id));
    state.profile = textIn(values.value(keys::profile));
    state.interfaceName = textIn(values.value(keys::interfaceName));
    state.operatorName = textIn(values.value(keys::operatorName));
    state.operatorCode = textIn(values.value(keys::operatorCode));
    state.sim = textIn(values.value(keys::sim));
    state.isRoaming = modem::flagOf(values.value(keys::isRoaming));
    state.technology = textIn(values.value(keys::technology));
    const qint64 since = numberIn(values.value(keys::since));
    state.since = QDateTime::fromSecsSinceEpoch(since, QTimeZone::utc());
    state.uploadedBytes = numberIn(values.value(keys::uploadedBytes));
    state.downloadedBytes = numberIn(values.value(keys::downloadedBytes));
    state.uploadRate = numberIn(values.value(keys::uploadRate));
    state.downloadRate = numberIn(values.value(keys::downloadRate));
    if (state.id == 0 || since == 0 || since > latestTime)
        return std::nullopt;
    return state;
}

QList<QVariantMap> connectionsIn(const QVariant &value)
{
    if (value.userType() != qMetaTypeId<QDBusArgument>())
        return {};
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("aa{sv}"))
        return {};
    return qdbus_cast<QList<QVariantMap>>(argument).mid(0, mostConnections);
}

QString textIn(const QVariant &value)
{
    return value.userType() == QMetaType::QString ? value.toString().left(longestText) : QString();
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
