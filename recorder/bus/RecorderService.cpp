// SPDX-License-Identifier: MIT
#include "recorder/bus/RecorderService.h"

#include "ConnectionRecorder1Adaptor.h"
#include "modem/BusConnection.h"
#include "modem/Names.h"
#include "recorder/ConnectionRecorder.h"
#include "recorder/bus/HandOver.h"
#include "recorder/bus/RecorderObject.h"

#include <QLoggingCategory>

#include <utility>
#include <vector>

namespace recorder
{

using modem::busCall;
using modem::BusConnection;
namespace names = modem::names;

namespace
{

Q_LOGGING_CATEGORY(log, "recorder.bus", QtWarningMsg)

// How a name is requested, by the bus's own numbers; without any of them, one that has an
// owner already is waited for.
constexpr uint allowReplacement = 1;
constexpr uint replaceExisting = 2;

} // namespace

RecorderService::RecorderService(ConnectionRecorder &recorder, const QString &storePath,
                                 Place place, ProblemText problemText, const QString &busAddress,
                                 std::chrono::milliseconds interval, QObject *parent)
    : QObject(parent)
    , m_recorder(recorder)
    , m_hasWindow(place == Place::Foreground)
    , m_busAddress(busAddress)
    , m_name(nameFor(storePath))
    , m_bus(std::make_unique<BusConnection>(
          busAddress, std::vector<BusConnection::Subscription>{{names::bus, names::ownerChanged,
                                                                HandOver::rulesFor(m_name)}}))
    , m_object(
          std::make_unique<RecorderObject>(recorder, storePath, std::move(problemText), interval))
    , m_listeners(*m_bus, [this] { tellWhetherWatched(); })
    , m_handOver(std::make_unique<HandOver>(recorder, *m_bus, m_name, place))
{
    new ConnectionRecorder1Adaptor(m_object.get()); // a child
    tellWhetherWatched();
    connect(m_bus.get(), &BusConnection::connected, this, &RecorderService::publish);
    connect(m_bus.get(), &BusConnection::disconnected, this, [this] {
        m_listeners.forgetAll();
        m_handOver->forgetAll();
    });
    connect(m_bus.get(), &BusConnection::received, this, [this](const QDBusMessage &message) {
        m_listeners.handleOwnerChange(message);
        m_handOver->handleOwnerChange(message);
    });
    connect(m_object.get(), &RecorderObject::watched, this,
            [this](const QString &client) { m_listeners.add(client); });
    connect(m_object.get(), &RecorderObject::unwatched, this,
            [this](const QString &client) { m_listeners.remove(client); });
    connect(m_object.get(), &RecorderObject::told, this,
            [this](const QDBusMessage &signal) { m_bus->connection().send(signal); });
    connect(m_object.get(), &RecorderObject::recordingChanged, this, &RecorderService::renewName);
    connect(m_object.get(), &RecorderObject::recordingChanged, this, &RecorderService::updateClaim);
    connect(&recorder, &ConnectionRecorder::started, this, [this] { m_handOver->makeWay(); });
    connect(m_object.get(), &RecorderObject::waitingChanged, this, &RecorderService::updateClaim);
}

RecorderService::~RecorderService() = default;

QString RecorderService::nameFor(const QString &storePath)
{
    return busNameFor(interfaceName(), storePath);
}

QString RecorderService::objectPath()
{
    return RecorderObject::objectPath();
}

QString RecorderService::interfaceName()
{
    return RecorderObject::interfaceName();
}

QString RecorderService::uniqueName() const
{
    return m_bus->uniqueName();
}

void RecorderService::start()
{
    if (m_busAddress.isEmpty())
        qCDebug(log, "There is no session bus.");
    else if (!m_bus->start())
        qCWarning(log,
                  "Programs cannot see what is recorded: the session bus \"%s\" is not on this "
                  "computer. Set DBUS_SESSION_BUS_ADDRESS to an address that begins with "
                  "\"unix:\".",
                  qUtf8Printable(m_busAddress));
}

/// The object comes first: nobody finds the name without it.
void RecorderService::publish()
{
    QDBusConnection connection = m_bus->connection();
    connection.registerObject(objectPath(), m_object.get(), QDBusConnection::ExportAdaptors);
    requestName();
    m_handOver->begin();
    updateClaim();
}

void RecorderService::tellWhetherWatched()
{
    m_object->setWatched(m_listeners.areThere());
    m_recorder.setWatched(m_hasWindow || m_listeners.areThere());
}

void RecorderService::updateClaim()
{
    m_handOver->setAbleToRecord(m_object->isRecording() || m_object->isWaiting());
}

/// One that records no more goes behind those that wait for the name, for one of them may
/// have begun to record.
void RecorderService::renewName()
{
    if (!m_object->isRecording())
        m_bus->tell(busCall("ReleaseName", {m_name}));
    requestName();
}

void RecorderService::requestName()
{
    const uint flags = m_object->isRecording() ? replaceExisting : allowReplacement;
    m_bus->tell(busCall("RequestName", {m_name, flags}));
}

} // namespace recorder
