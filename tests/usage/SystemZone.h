// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <sched.h>
#include <sys/mount.h>

#include <cerrno>
#include <cstring>

/// The zone of the system, as this thread and the processes that it starts see it while this
/// object lives; everybody else keeps the one they have.
class SystemZone
{
public:
    SystemZone() = default;
    ~SystemZone()
    {
        for (; m_changes > 0; --m_changes)
            umount2(file, MNT_DETACH);
    }
    SystemZone(const SystemZone &) = delete;
    SystemZone &operator=(const SystemZone &) = delete;

    /// Returns why that is not possible, or nothing.
    QString change(const QByteArray &name)
    {
        const QByteArray wanted = "/usr/share/zoneinfo/" + name;
        if ((m_changes == 0 && !leaveTheOthers()) ||
            mount(wanted.constData(), file, nullptr, MS_BIND, nullptr) != 0)
            return QStringLiteral("another zone file is not permitted: %1")
                .arg(QString::fromLocal8Bit(std::strerror(errno)));
        ++m_changes;
        return {};
    }

private:
    static bool leaveTheOthers()
    {
        return unshare(CLONE_NEWNS) == 0 &&
               mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    }

    static constexpr const char *file = "/etc/localtime";
    int m_changes = 0;
};
