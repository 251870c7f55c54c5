// SPDX-License-Identifier: MIT
#pragma once

#include "recorder/ConnectionState.h"
#include "recorder/bus/BusName.h"

#include <QList>
#include <QMap>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <QVariant>

#include <functional>
#include <memory>

class QDBusMessage;

namespace modem
{
class BusConnection;
}

namespace recorder
{

/// What another program's recorder says of itself.
struct RecorderState {
    bool isRecording = false;
    QString problem; ///< as RecorderService has it
    QList<ConnectionState> connections;
};

/// Follows on the session bus whoever records into a store (see docs/dbus.md), as long as
/// it is another program. It waits for nobody; what makes no sense counts as not said.
class RecorderClient : public QObject
{
    Q_OBJECT

public:
    /// `ownName` gives this program's own name as a recorder on the bus, if it has one.
    RecorderClient(const QString &storePath, std::function<QString()> ownName,
                   const QString &busAddress = sessionBusAddress(), QObject *parent = nullptr);
    ~RecorderClient() override;

    void start();

signals:
    /// The first one tells of connections that may have begun long before; without a
    /// recorder, its state is empty.
    void changed(const recorder::RecorderState &state);
    /// A connection is finished in the store.
    void ended();

private:
    void findOwner();
    void setOwner(const QString &owner);
    void watchOwner();
    void handleMessage(const QDBusMessage &message);
    void handleSignal(const QString &member, const QVariantList &arguments);
    void update(const QVariantMap &properties);
    void updateConnections(const QVariant &value);
    void setConnection(const QVariantMap &values);
    void tell();

    const QString m_name;
    const std::function<QString()> m_ownName;
    const std::unique_ptr<modem::BusConnection> m_bus;
    QString m_owner; ///< empty unless it is to be followed
    bool m_isRecording = false;
    QString m_problem;
    QMap<qint64, ConnectionState> m_connections; ///< by id
};

} // namespace recorder

Q_DECLARE_METATYPE(recorder::RecorderState)
