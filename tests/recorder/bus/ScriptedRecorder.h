// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QList>
#include <QStringList>
#include <QVariantMap>

/// The values of a connection of this id, as a recorder tells them.
QVariantMap connectionValues(qint64 id, qint64 uploadedBytes = 0);

/// A recorder's service that says whatever a test wants it to say.
class ScriptedRecorder : public QDBusVirtualObject
{
    Q_OBJECT

public:
    /// Has the name or, where somebody has it already, gets it next.
    ScriptedRecorder(const QString &address, const QString &serviceName);
    ~ScriptedRecorder() override;

    /// All that it says of itself, unless `answer` is there.
    void set(const QString &property, const QVariant &value);
    void setConnections(const QList<QVariantMap> &connections);
    void tell(const QString &signal, const QVariantList &arguments);
    void tellProperty(const QString &property, const QVariant &value);
    void tellConnections(const QList<QVariantMap> &connections);
    /// Leaves the bus, and its name.
    void leave();

    QVariantList answer; ///< to GetAll, whatever it means
    QStringList calls;   ///< of which methods

    QString introspect(const QString & /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override;

private:
    const QString m_connectionName; ///< among QtDBus's connections
    QDBusConnection m_bus;
    QVariantMap m_properties;
};
