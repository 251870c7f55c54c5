// SPDX-License-Identifier: MIT
#include "PrivateBus.h"

#include <QFile>

namespace
{

const char *const configuration = R"(<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path=%1</listen>
  <auth>EXTERNAL</auth>
  <servicedir>%2</servicedir>
  <policy context="default">
    <allow user="*"/>
    <allow own="*"/>
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
  </policy>
</busconfig>
)";

} // namespace

PrivateBus::PrivateBus(const QString &folder)
    : m_folder(folder)
{
    // It complains of a limit that only root can raise.
    m_daemon.setStandardErrorFile(QProcess::nullDevice());
}

PrivateBus::~PrivateBus()
{
    kill();
}

bool PrivateBus::start()
{
    QFile file(m_folder + QStringLiteral("/bus.conf"));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(QString::fromLatin1(configuration).arg(socket(), m_folder).toUtf8());
    file.close();
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                    QStringLiteral("--print-address=1"),
                    QStringLiteral("--config-file=") + file.fileName()});
    return m_daemon.waitForStarted() && m_daemon.waitForReadyRead();
}

void PrivateBus::kill()
{
    m_daemon.kill();
    m_daemon.waitForFinished();
}

QString PrivateBus::address() const
{
    return QStringLiteral("unix:path=") + socket();
}
