// SPDX-License-Identifier: MIT
#include "modem/BusConnection.h"

#include "modem/BusAddress.h"
#include "modem/ModemLog.h"
#include "modem/Names.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QDBusPendingCallWatcher>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemWatcher>

#include <atomic>
#include <climits>
#include <utility>

namespace modem
{

namespace
{

/// A socket is there a moment before somebody listens to it, and a bus that loses
/// everybody at once is not asked again and again.
constexpr int pauseMilliseconds = 1000;

QString nextName()
{
    static std::atomic<int> count{0};
    return QStringLiteral("bus-%1").arg(++count);
}

QDBusMessage startingNoService(QDBusMessage call)
{
    call.setAutoStartService(false);
    return call;
}

/// Newer versions of Qt do not tell whose an answer is, but the bus lets nobody else answer.
bool isAnswerOf(const QString &service, const QDBusMessage &reply)
{
    return reply.type() == QDBusMessage::ReplyMessage &&
           (reply.service().isEmpty() || reply.service() == service);
}

} // namespace

QDBusMessage busCall(const char *method, const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(names::bus, names::busPath, names::bus,
                                                       QLatin1String(method));
    call.setArguments(arguments);
    return call;
}

BusConnection::BusConnection(const QString &address, std::vector<Subscription> subscriptions,
                             QObject *parent)
    : QObject(parent)
    , m_address(address)
    , m_subscriptions(std::move(subscriptions))
    , m_name(nextName())
    , m_retry(this)
{
    m_retry.setSingleShot(true);
    m_retry.setInterval(pauseMilliseconds);
    connect(&m_retry, &QTimer::timeout, this, &BusConnection::connectToBus);
}

BusConnection::~BusConnection()
{
    close();
}

bool BusConnection::start()
{
    if (!isLocalBusAddress(m_address))
        return false;
    connectToBus();
    return true;
}

void BusConnection::connectToBus()
{
    if (m_pendingCalls) // connected already
        return;
    m_connection = QDBusConnection::connectToPeer(m_address, m_name);
    if (!m_connection.isConnected()) {
        qCDebug(log, "%s", qUtf8Printable(m_connection.lastError().message()));
        close();
        waitForSocket();
        return;
    }
    m_pendingCalls = std::make_unique<QObject>();
    subscribe();
    greet();
}

void BusConnection::subscribe()
{
    forEachSignal(&QDBusConnection::connect);
}

/// QtDBus's thread may be handing a signal to this object at this moment. It must be done
/// with that, and the events that refer to the connection gone, before the connection is
/// given up: QtDBus would delete it for each that comes later once more.
void BusConnection::unsubscribe()
{
    forEachSignal(&QDBusConnection::disconnect);
    QCoreApplication::removePostedEvents(this, QEvent::MetaCall);
}

void BusConnection::forEachSignal(SignalFunction change)
{
    (m_connection.*change)(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                           QStringLiteral("org.freedesktop.DBus.Local"),
                           QStringLiteral("Disconnected"), this, SLOT(handleDisconnection()));
    for (const Subscription &subscription : m_subscriptions)
        (m_connection.*change)(QString(), QString(), subscription.interfaceName,
                               subscription.member, this, SLOT(handleSignal(QDBusMessage)));
}

/// What is sent meanwhile waits in order behind the greeting.
void BusConnection::greet()
{
    ask(busCall("Hello"), QStringLiteral("s"), [this](const QVariantList &reply) {
        m_isGreeted = !reply.isEmpty();
        if (!m_isGreeted)
            return;
        m_uniqueName = reply.first().toString();
        m_socketWatcher.reset();
        emit connected();
    });
    for (const Subscription &subscription : m_subscriptions) {
        for (const QString &rule : subscription.rules)
            tell(busCall("AddMatch", {rule}));
    }
}

void BusConnection::ask(const QDBusMessage &call, const QString &signature, const Handler &handler)
{
    if (!m_pendingCalls)
        return;
    const QDBusMessage message = startingNoService(call);
    // Who is slow may still answer; who has gone is said to be so by the bus.
    auto *const watcher =
        new QDBusPendingCallWatcher(m_connection.asyncCall(message, INT_MAX), m_pendingCalls.get());
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [service = call.service(), signature, handler](QDBusPendingCallWatcher *finished) {
                const QDBusMessage reply = finished->reply();
                const bool isProper = isAnswerOf(service, reply) && reply.signature() == signature;
                finished->deleteLater();
                handler(isProper ? reply.arguments() : QVariantList());
            });
}

void BusConnection::tell(const QDBusMessage &call)
{
    if (m_pendingCalls)
        m_connection.send(startingNoService(call));
}

void BusConnection::handleSignal(const QDBusMessage &message)
{
    if (m_isGreeted)
        emit received(message);
}

void BusConnection::handleDisconnection()
{
    const bool wasGreeted = std::exchange(m_isGreeted, false);
    close();
    if (!wasGreeted) {
        waitForSocket();
        return;
    }
    m_retry.start();
    emit disconnected();
}

void BusConnection::close()
{
    m_pendingCalls.reset();
    m_uniqueName.clear();
    unsubscribe();
    QDBusConnection::disconnectFromPeer(m_name);
    m_connection = QDBusConnection(QString());
}

/// In the nearest folder that is there.
void BusConnection::waitForSocket()
{
    const QString socket = socketOfBusAddress(m_address);
    if (socket.isEmpty())
        return;
    QDir folder = QFileInfo(socket).dir();
    while (!folder.exists() && !folder.isRoot())
        folder = QFileInfo(folder.path()).dir();
    const QStringList watched(folder.path());
    if (m_socketWatcher && m_socketWatcher->directories() == watched)
        return;
    m_socketWatcher = std::make_unique<QFileSystemWatcher>(watched);
    connect(m_socketWatcher.get(), &QFileSystemWatcher::directoryChanged, this,
            &BusConnection::retrySoon);
    // It may have come just before.
    retrySoon();
}

/// However often something happens where others have their sockets too.
void BusConnection::retrySoon()
{
    if (!m_retry.isActive())
        m_retry.start();
}

} // namespace modem
