// SPDX-License-Identifier: MIT
#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class QDBusMessage;

namespace modem
{
class BusConnection;
}

namespace common
{

struct Notification {
    QString title;
    QString text;          ///< without any markup
    bool isUrgent = false; ///< stays until the user has seen it
};

/// The desktop's notification service, on the session bus. Nobody waits for it, and a bus
/// or a service that comes later is noticed. One that has refused a notification is taken for
/// away for a minute.
class NotificationService : public QObject
{
    Q_OBJECT

public:
    /// Looks for the service at once, as look() does.
    explicit NotificationService(const QString &busAddress, QObject *parent = nullptr);
    ~NotificationService() override;

    /// If the service is there, that is told. If not, the bus is to start it, unless it
    /// could not within the last minute.
    void look();
    /// For who has just been told that it is there. Who knows that it has not shown it, since
    /// it said so or has gone, calls `handleRefusal`; nobody else ever does, so it may be shown
    /// although nothing is heard of it any more.
    void show(const Notification &notification, const std::function<void()> &handleRefusal);

signals:
    /// It is there: when somebody looks for it, and when it comes later.
    void found();

private:
    void search();
    void startService();
    void askWhoStarted();
    void setOwner(const QString &owner);
    void handleOwnerChange(const QDBusMessage &message);

    const std::unique_ptr<modem::BusConnection> m_bus;
    QString m_owner;        ///< of the service's name on the bus; empty if there is none
    QDeadlineTimer m_pause; ///< after it was searched for, or has refused
};

} // namespace common
