// SPDX-License-Identifier: MIT
#include "FakeModemManager.h"

#include "modem/DBusValue.h"
#include "modem/Names.h"

#include <QDBusMetaType>

#include <utility>

namespace names = modem::names;

namespace modem
{

static QDBusArgument &operator<<(QDBusArgument &argument, const NamedPort &port)
{
    argument.beginStructure();
    argument << port.name << port.type;
    argument.endStructure();
    return argument;
}

} // namespace modem

namespace
{

QString uniqueName()
{
    static int count = 0;
    return QStringLiteral("fake-%1").arg(++count);
}

} // namespace

FakeModemManager::FakeModemManager(const QString &busAddress)
    : m_name(uniqueName())
    , m_connection(QDBusConnection::connectToBus(busAddress, m_name))
{
    qDBusRegisterMetaType<modem::NamedPort>();
    qDBusRegisterMetaType<QList<modem::NamedPort>>();
    qDBusRegisterMetaType<Interfaces>();
    qDBusRegisterMetaType<modem::ModemTable::Objects>();
    m_connection.registerVirtualObject(names::root, this, QDBusConnection::SubPath);
}

FakeModemManager::~FakeModemManager()
{
    QDBusConnection::disconnectFromBus(m_name);
}

bool FakeModemManager::takeName()
{
    return m_connection.registerService(names::service);
}

bool FakeModemManager::giveNameAway()
{
    return m_connection.unregisterService(names::service);
}

void FakeModemManager::addModem(const QString &path, const Interfaces &interfaces)
{
    objects[path] = interfaces;
    send(names::root, names::objectsInterface, "InterfacesAdded",
         {QVariant::fromValue(QDBusObjectPath(path)), QVariant::fromValue(interfaces)});
}

void FakeModemManager::removeModem(const QString &path)
{
    const QStringList interfaces = objects.take(path).keys();
    send(names::root, names::objectsInterface, "InterfacesRemoved",
         {QVariant::fromValue(QDBusObjectPath(path)), interfaces});
}

void FakeModemManager::change(const QString &path, const QString &interfaceName,
                              const QVariantMap &properties)
{
    QVariantMap &known = objects[path][interfaceName];
    for (auto property = properties.begin(); property != properties.end(); ++property)
        known[property.key()] = property.value();
    send(path, names::propertiesInterface, "PropertiesChanged",
         {interfaceName, properties, QStringList()});
}

void FakeModemManager::send(const QString &path, const QString &interfaceName,
                            const QString &member, const QVariantList &arguments,
                            const QString &receiver)
{
    QDBusMessage signal =
        receiver.isEmpty()
            ? QDBusMessage::createSignal(path, interfaceName, member)
            : QDBusMessage::createTargetedSignal(receiver, path, interfaceName, member);
    signal.setArguments(arguments);
    m_connection.send(signal);
}

void FakeModemManager::answerLate()
{
    for (const QDBusMessage &message : std::as_const(m_unanswered))
        m_connection.send(message.createReply(answerTo(message)));
    m_unanswered.clear();
}

QString FakeModemManager::introspect(const QString &) const
{
    return {};
}

bool FakeModemManager::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    m_client = message.service();
    m_questions.append(message.path());
    if (silentPaths.contains(message.path()))
        m_unanswered.append(message);
    else
        connection.send(message.createReply(answerTo(message)));
    return true;
}

QVariantList FakeModemManager::answerTo(const QDBusMessage &message) const
{
    if (oddAnswers.contains(message.path()))
        return oddAnswers.value(message.path());
    if (message.member() == "GetAll")
        return {objects.value(message.path()).value(message.arguments().value(0).toString())};
    modem::ModemTable::Objects modems;
    for (auto object = objects.begin(); object != objects.end(); ++object) {
        if (object.value().contains(names::modemInterface))
            modems[QDBusObjectPath(object.key())] = object.value();
    }
    return {QVariant::fromValue(modems)};
}
