// SPDX-License-Identifier: MIT
#include "ScriptedRecorder.h"

#include "recorder/bus/RecorderService.h"

#include <QDBusConnectionInterface>
#include <QDBusMetaType>

using recorder::RecorderService;

namespace
{

QString nextName()
{
    static int count = 0;
    return QStringLiteral("scripted-recorder-%1").arg(++count);
}

} // namespace

QVariantMap connectionValues(qint64 id, qint64 uploadedBytes)
{
    return {{"Id", id},
            {"Profile", "internet.example"},
            {"Interface", QStringLiteral("wwan%1").arg(id)},
            {"Since", qint64(1788220800)},
            {"UploadedBytes", uploadedBytes},
            {"DownloadedBytes", qint64(2)},
            {"UploadRate", qint64(3)},
            {"DownloadRate", qint64(4)}};
}

ScriptedRecorder::ScriptedRecorder(const QString &address, const QString &serviceName)
    : m_connectionName(nextName())
    , m_bus(QDBusConnection::connectToBus(address, m_connectionName))
{
    qDBusRegisterMetaType<QList<QVariantMap>>();
    set("Recording", true);
    set("Problem", QString());
    setConnections({});
    m_bus.registerVirtualObject(RecorderService::objectPath(), this);
    m_bus.interface()->registerService(serviceName, QDBusConnectionInterface::QueueService);
}

ScriptedRecorder::~ScriptedRecorder()
{
    leave();
}

void ScriptedRecorder::leave()
{
    QDBusConnection::disconnectFromBus(m_connectionName);
    m_bus = QDBusConnection(QString());
}

void ScriptedRecorder::set(const QString &property, const QVariant &value)
{
    m_properties.insert(property, value);
}

void ScriptedRecorder::setConnections(const QList<QVariantMap> &connections)
{
    set("Connections", QVariant::fromValue(connections));
}

void ScriptedRecorder::tell(const QString &signal, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createSignal(RecorderService::objectPath(),
                                                      RecorderService::interfaceName(), signal);
    message.setArguments(arguments);
    m_bus.send(message);
}

void ScriptedRecorder::tellProperty(const QString &property, const QVariant &value)
{
    QDBusMessage message = QDBusMessage::createSignal(
        RecorderService::objectPath(), "org.freedesktop.DBus.Properties", "PropertiesChanged");
    message << RecorderService::interfaceName() << QVariantMap{{property, value}} << QStringList();
    m_bus.send(message);
}

void ScriptedRecorder::tellConnections(const QList<QVariantMap> &connections)
{
    tellProperty("Connections", QVariant::fromValue(connections));
}

bool ScriptedRecorder::handleMessage(const QDBusMessage &message, const QDBusConnection &bus)
{
    calls.append(message.member());
    if (message.member() != "GetAll")
        return bus.send(message.createReply());
    return bus.send(message.createReply(answer.isEmpty() ? QVariantList{m_properties} : answer));
}
