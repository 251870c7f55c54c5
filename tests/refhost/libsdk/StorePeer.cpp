// SPDX-License-Identifier: MIT
#include "StorePeer.h"

StorePeer::StorePeer()
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QStringLiteral(STORE_PEER), {});
}

StorePeer::~StorePeer()
{
    m_process.closeWriteChannel();
    m_process.waitForFinished();
}

QString StorePeer::tell(const QString &command)
{
    m_process.write(command.toUtf8() + '\n');
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead())
            return QStringLiteral("failed: no answer to \"%1\"").arg(command);
    }
    return QString::fromUtf8(m_process.readLine()).trimmed();
}
