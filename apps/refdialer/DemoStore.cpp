// SPDX-License-Identifier: MIT
#include "DemoStore.h"

#include "Failure.h"

#include <QDir>
#include <QFile>

namespace refdialer
{

QString DemoStore::sampleFile()
{
    return QDir::cleanPath(
        QCoreApplication::applicationDirPath() +
        QStringLiteral("/" NETINFORECORD_DATADIR_FROM_BINDIR "/sample-history.db"));
}

DemoStore::DemoStore(const QString &sample)
    : m_folder(QDir::tempPath() + QStringLiteral("/refdialer-demo-XXXXXX"))
{
    QFile source(sample);
    if (!m_folder.isValid() || !source.copy(file()))
        throw Failure{ExitCode::StoreNotUsable,
                      tr("The sample history %1 cannot be copied to %2: %3. Install refdialer "
                         "again, or make room there.")
                          .arg(sample, QDir::tempPath(),
                               m_folder.isValid() ? source.errorString() : m_folder.errorString())};
    // The mode comes along, and an installed file may be one that nobody writes.
    QFile::setPermissions(file(), QFile::ReadOwner | QFile::WriteOwner);
}

QString DemoStore::file() const
{
    return m_folder.filePath(QStringLiteral("connections.db"));
}

} // namespace refdialer
