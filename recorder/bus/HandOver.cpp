// SPDX-License-Identifier: MIT
#include "recorder/bus/HandOver.h"

#include "modem/BusConnection.h"
#include "modem/OwnerChange.h"
#include "recorder/ConnectionRecorder.h"

namespace recorder
{

using modem::busCall;

namespace
{

QString backgroundNameFor(const QString &name)
{
    return name + QLatin1String(".Background");
}

} // namespace

HandOver::HandOver(ConnectionRecorder &recorder, modem::BusConnection &bus, const QString &name,
                   RecorderService::Place place)
    : m_recorder(recorder)
    , m_bus(bus)
    , m_name(name)
    , m_backgroundName(backgroundNameFor(name))
    , m_isInBackground(place == RecorderService::Place::Background)
{
}

QStringList HandOver::rulesFor(const QString &name)
{
    return {modem::ruleForOwnersOf(name), modem::ruleForOwnersOf(backgroundNameFor(name))};
}

void HandOver::begin()
{
    modem::askForOwner(m_bus, m_backgroundName, [this](const QString &owner) {
        if (!owner.isEmpty())
            setBackgroundOwner(owner);
    });
}

void HandOver::forgetAll()
{
    m_backgroundOwner.clear();
    m_favoured.clear();
}

void HandOver::handleOwnerChange(const QDBusMessage &message)
{
    const auto change = modem::ownerChangeIn(message);
    if (!change)
        return;
    if (change->name == m_backgroundName)
        setBackgroundOwner(change->owner);
    // Where one in the background waits too, it is that one's turn.
    else if (change->name == m_name && (m_isInBackground || m_backgroundOwner.isEmpty()))
        m_recorder.tryNow();
}

void HandOver::setAbleToRecord(bool isAble)
{
    if (!m_isInBackground)
        return;
    const QDBusMessage call = isAble ? busCall("RequestName", {m_backgroundName, 0U})
                                     : busCall("ReleaseName", {m_backgroundName});
    m_bus.ask(call, QStringLiteral("u"), [](const QVariantList &) {});
}

void HandOver::setBackgroundOwner(const QString &owner)
{
    m_backgroundOwner = owner;
    if (owner.isEmpty())
        m_recorder.tryNow();
    else
        makeWay();
}

void HandOver::makeWay()
{
    if (m_isInBackground || m_backgroundOwner.isEmpty() || m_favoured.contains(m_backgroundOwner))
        return;
    // While this one waits too, it has nothing to give yet.
    if (m_recorder.isRecording())
        m_favoured.insert(m_backgroundOwner);
    m_recorder.makeWay();
}

} // namespace recorder
