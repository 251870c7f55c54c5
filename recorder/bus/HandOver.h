// SPDX-License-Identifier: MIT
#pragma once

#include "recorder/bus/RecorderService.h"

#include <QSet>
#include <QString>
#include <QStringList>

class QDBusMessage;

namespace modem
{
class BusConnection;
}

namespace recorder
{

class ConnectionRecorder;

/// Lets the recorders of a store know over the bus when to try and when to make way. Which
/// of them records is decided by the store's lock alone; without a bus it only takes longer.
///
/// A recorder in the background has a second name, or waits for it. One in the foreground
/// makes way for each owner of that name once: who cannot use it is not waited for again.
class HandOver
{
public:
    /// `name` belongs to who records into the store; the others must live longer.
    HandOver(ConnectionRecorder &recorder, modem::BusConnection &bus, const QString &name,
             RecorderService::Place place);

    /// Lets the bus tell what handleOwnerChange() needs.
    static QStringList rulesFor(const QString &name);

    /// The bus is there.
    void begin();
    /// It is gone.
    void forgetAll();
    void handleOwnerChange(const QDBusMessage &message);
    /// Whether nothing but another recorder keeps this one from recording, if anything.
    void setAbleToRecord(bool isAble);
    /// For one in the background that was slower than this recorder, or is there already.
    void makeWay();

private:
    void setBackgroundOwner(const QString &owner);

    ConnectionRecorder &m_recorder;
    modem::BusConnection &m_bus;
    const QString m_name;
    const QString m_backgroundName;
    const bool m_isInBackground;
    QString m_backgroundOwner;
    QSet<QString> m_favoured; ///< owners that way has been made for
};

} // namespace recorder
