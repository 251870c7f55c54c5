// SPDX-License-Identifier: MIT
#include "StorePeer.h"

StorePeer::StorePeer()
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QStringLiteral(STORE_PEER), QStringList());
}

StorePeer::~StorePeer()
{
    m_process.closeWriteChannel();
    m_process.waitForFinished();
}

void StorePeer::kill()
{
    m_process.kill();
    m_process.waitForFinished();
}

QString StorePeer::tell(const QString &command)
{
    send(command);
    return answer();
}

void StorePeer::send(const QString &command)
{
    m_process.write(command.toUtf8() + '\n');
    m_process.waitForBytesWritten();
}

bool StorePeer::hasAnswered()
{
    return m_process.canReadLine() || (m_process.waitForReadyRead(0) && m_process.canReadLine());
}

QString StorePeer::answer()
{
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead())
            return QStringLiteral("failed: no answer");
    }
    return QString::fromUtf8(m_process.readLine()).trimmed();
}
