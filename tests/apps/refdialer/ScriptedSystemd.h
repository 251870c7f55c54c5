// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QMap>
#include <QStringList>

/// The user's service manager on a bus, with one unit, which does what a test wants.
class ScriptedSystemd : public QDBusVirtualObject
{
    Q_OBJECT

public:
    explicit ScriptedSystemd(const QString &address);
    ~ScriptedSystemd() override;

    bool isEnabled = false;
    bool isRunning = false;
    bool canStart = true;
    QMap<QString, QString> errors; ///< names of errors, by the methods that answer so
    QStringList calls;             ///< methods with their arguments

    QString introspect(const QString & /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override;

private:
    void startUnit();
    void tellEndOfJob(const QString &unit, const QString &result);

    QDBusConnection m_bus;
};
