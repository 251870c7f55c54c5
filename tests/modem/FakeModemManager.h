// SPDX-License-Identifier: MIT
#pragma once

#include "modem/ModemTable.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QHash>
#include <QSet>
#include <QStringList>

/// A daemon that says on a bus what the test lets it say.
class FakeModemManager : public QDBusVirtualObject
{
public:
    using Interfaces = modem::ModemTable::Interfaces;

    explicit FakeModemManager(const QString &busAddress);
    ~FakeModemManager() override;

    bool takeName();
    bool giveNameAway();

    /// What it answers; it tells nobody of it.
    QMap<QString, Interfaces> objects;
    /// Answers of these arguments instead, by path.
    QHash<QString, QVariantList> oddAnswers;
    /// It has nothing to say for them, not even that it has not.
    QSet<QString> silentPaths;

    void addModem(const QString &path, const Interfaces &interfaces);
    void removeModem(const QString &path);
    void change(const QString &path, const QString &interfaceName, const QVariantMap &properties);

    /// Sends a signal, to everybody or to one alone.
    void send(const QString &path, const QString &interfaceName, const QString &member,
              const QVariantList &arguments, const QString &receiver = {});
    /// Answers what it was asked by for a silent path.
    void answerLate();

    /// Who has asked last.
    QString client() const { return m_client; }
    QStringList questions() const { return m_questions; }

    QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    QVariantList answerTo(const QDBusMessage &message) const;

    const QString m_name;
    QDBusConnection m_connection;
    QList<QDBusMessage> m_unanswered;
    QString m_client;
    QStringList m_questions;
};
