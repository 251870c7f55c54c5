// SPDX-License-Identifier: MIT
#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <QString>

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
/// or a service that comes later is noticed.
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
    /// For who has just been told that it is there.
    void show(const Notification &notification);

signals:
    /// It is there: when somebody looks for it, and when it comes later.
    void found();

private:
    void search();
    void startService();
    void setThere(bool isThere);
    void handleOwnerChange(const QDBusMessage &message);

    const std::unique_ptr<modem::BusConnection> m_bus;
    bool m_isThere = false;
    QDeadlineTimer m_pause; ///< after it was searched for
};

} // namespace common
