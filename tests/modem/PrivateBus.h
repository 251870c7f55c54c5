// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QString>

/// A message bus of the test's own, with its socket in the folder; everybody may do
/// everything there. Services that the folder describes are started on demand.
class PrivateBus
{
public:
    explicit PrivateBus(const QString &folder);
    ~PrivateBus();

    /// Whether it listens now.
    bool start();
    /// Ends it without letting it say goodbye; its socket stays in the folder.
    void kill();
    QString address() const;
    QString socket() const { return m_folder + QStringLiteral("/bus"); }

private:
    const QString m_folder;
    QProcess m_daemon;
};
