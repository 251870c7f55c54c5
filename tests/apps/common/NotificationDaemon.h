// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QList>
#include <QString>

/// The notification service of a desktop on a bus, which shows nothing and keeps what it is
/// to show.
class NotificationDaemon : public QDBusVirtualObject
{
public:
    struct Notification {
        QString program;
        QString title;
        QString text;
        QString desktopEntry;
        int urgency = -1;
    };

    explicit NotificationDaemon(const QString &busAddress);
    ~NotificationDaemon() override;

    bool takeName();
    bool giveNameAway();

    enum class Manner { Shows, Refuses, SaysNothing };
    /// What it does with notifications from now on; those that it does not show are counted.
    void setManner(Manner manner) { m_manner = manner; }
    int notShown() const { return m_notShown; }

    QList<Notification> shown() const { return m_shown; }
    QStringList titles() const;

    QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    bool answerWithoutShowing(const QDBusMessage &message, const QDBusConnection &connection);

    const QString m_connectionName; ///< among QtDBus's connections
    QDBusConnection m_bus;
    QList<Notification> m_shown;
    Manner m_manner = Manner::Shows;
    int m_notShown = 0;
};
