// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QVariant>

#include <functional>
#include <memory>
#include <vector>

class QFileSystemWatcher;

namespace modem
{

/// A call of a method of the bus itself.
QDBusMessage busCall(const char *method, const QVariantList &arguments = {});

/// A connection to a message bus that never waits: neither for a bus that is not there
/// yet, nor for one that accepts and then says nothing. QtDBus's own connections to a
/// bus are greeted by it before anything else goes on, and all of a program's share one
/// thread. So this one is opened as one to a peer, which is not asked anything, and
/// greets the bus by itself.
///
/// A bus that comes later, or again, is noticed by its socket.
class BusConnection : public QObject
{
    Q_OBJECT

public:
    /// Signals to receive, and the rule that lets the bus send them.
    struct Subscription {
        QString interfaceName;
        QString member;
        QStringList rules;
    };
    /// Gets the arguments of the answer; none if there was no proper one.
    using Handler = std::function<void(const QVariantList &)>;

    BusConnection(const QString &address, std::vector<Subscription> subscriptions,
                  QObject *parent = nullptr);
    ~BusConnection() override;

    /// False, and nothing else follows, if the address leads to another computer.
    bool start();
    /// To send signals and register objects with, between connected() and disconnected().
    QDBusConnection connection() const { return m_connection; }
    /// Its name on the bus between connected() and disconnected().
    QString uniqueName() const { return m_uniqueName; }
    /// Sends the call and starts no service for it. The answer must be the receiver's own
    /// and have that signature. No answer comes when the bus is lost meanwhile.
    void ask(const QDBusMessage &call, const QString &signature, const Handler &handler);
    /// The same, whatever the answer may be.
    void tell(const QDBusMessage &call);

signals:
    /// The bus is there, all subscriptions are on their way to it.
    void connected();
    void disconnected();
    /// Of a subscription. Anybody on the bus can send it: look at the sender.
    void received(const QDBusMessage &message);

private slots:
    void handleSignal(const QDBusMessage &message);
    void handleDisconnection();

private:
    /// QDBusConnection::connect() or disconnect().
    using SignalFunction = bool (QDBusConnection::*)(const QString &service, const QString &path,
                                                     const QString &interfaceName,
                                                     const QString &member, QObject *receiver,
                                                     const char *slot);

    void connectToBus();
    void subscribe();
    void unsubscribe();
    void forEachSignal(SignalFunction change);
    void greet();
    void close();
    void waitForSocket();
    void retrySoon();

    const QString m_address;
    const std::vector<Subscription> m_subscriptions;
    const QString m_name; ///< among QtDBus's connections
    QString m_uniqueName;
    QDBusConnection m_connection{QString()};
    std::unique_ptr<QObject> m_pendingCalls; ///< of the present connection
    std::unique_ptr<QFileSystemWatcher> m_socketWatcher;
    QTimer m_retry;
    bool m_isGreeted = false;
};

} // namespace modem
