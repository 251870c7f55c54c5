// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QList>
#include <QObject>
#include <QVariant>

/// A program on a bus that knows of a recorder's service nothing but its name, and uses
/// plain calls and signals. It never blocks: the service lives on its thread.
class BusClient : public QObject
{
    Q_OBJECT

public:
    BusClient(const QString &address, const QString &serviceName);
    ~BusClient() override;

    /// Leaves the bus.
    void leave();
    /// Its own name on the bus.
    QString name() const { return m_bus.baseService(); }
    bool isThere(const QString &name) const;
    bool isServiceThere() const { return isThere(m_serviceName); }
    /// The service's own name on the bus.
    QString owner() const;
    /// Gets the service's name when that one gives it away.
    void waitForName();
    void releaseName();

    /// The service's answer; an error if it has none in time.
    QDBusMessage call(const QString &method);
    QVariant property(const QString &name);
    QList<QVariantMap> connections();
    QString introspection();

    /// The signals of this name, in the order in which they came.
    QList<QDBusMessage> received(const QString &member) const;
    /// All the values that were told for the property.
    QVariantList toldValues(const QString &property) const;

private slots:
    void keep(const QDBusMessage &message) { m_signals.append(message); }

private:
    QDBusMessage call(const QString &interfaceName, const QString &method,
                      const QVariantList &arguments);

    const QString m_serviceName;
    const QString m_connectionName; ///< among QtDBus's connections
    QDBusConnection m_bus;
    QList<QDBusMessage> m_signals;
};

/// Of a property or an argument.
QList<QVariantMap> connectionsIn(const QVariant &value);
