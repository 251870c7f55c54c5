// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>

#include <functional>

class QDBusMessage;

namespace refdialer
{

/// The service that records without a window, as the user's systemd has it. It is asked
/// over the session bus, and nobody waits for its answers.
class BackgroundUnit : public QObject
{
    Q_OBJECT

public:
    enum class Outcome { On, Off, NoManager, NotInstalled, NotStarted, Refused };

    explicit BackgroundUnit(const QDBusConnection &bus, QObject *parent = nullptr);

    /// Answered with found().
    void look();
    /// Enables and starts it; answered with done(). No other order until then.
    void turnOn();
    /// Disables and stops it; answered in the same way.
    void turnOff();

    /// For the user; `reason` as done() has it.
    static QString textFor(Outcome outcome, const QString &reason);

signals:
    /// Whether it is enabled.
    void found(bool isOn);
    /// The reason is systemd's own, where it refused.
    void done(refdialer::BackgroundUnit::Outcome outcome, const QString &reason);

private slots:
    void handleEndOfJob(const QDBusMessage &message);

private:
    using Reaction = std::function<void(const QDBusMessage &)>;

    void send(const QString &method, const QVariantList &arguments, const Reaction &succeed,
              const Reaction &fail);
    void order(const QString &method, const QVariantList &arguments,
               const std::function<void()> &next);
    void tellFailure(const QDBusMessage &error);

    QDBusConnection m_bus;
    bool m_isStarting = false;
};

} // namespace refdialer
