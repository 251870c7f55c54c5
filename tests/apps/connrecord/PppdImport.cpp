// SPDX-License-Identifier: MIT
#include "PppdImport.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

QString dataFile(const QString &name)
{
    return QDir(CONNRECORD_TEST_DATA).filePath(name);
}

PppdImport::PppdImport()
    : m_store(m_folder.filePath("connections.db"))
{
}

QString PppdImport::logFile(const QString &name, const QString &changed) const
{
    return writtenLog(readFile(dataFile(name)), changed, name);
}

QString PppdImport::writtenLog(const QByteArray &contents, const QString &changed,
                               const QString &name) const
{
    const QString path = m_folder.filePath(name);
    writeFile(path, contents);
    QFile file(path);
    const bool isSet = file.open(QIODevice::ReadWrite) &&
                       file.setFileTime(QDateTime::fromString(changed, Qt::ISODate),
                                        QFileDevice::FileModificationTime);
    if (!isSet)
        qFatal("the time of %s cannot be set", qPrintable(path));
    return path;
}

ConnrecordRun PppdImport::import(const QString &path, const QStringList &options,
                                 const QByteArray &input) const
{
    return connrecord(QStringList{"--store", m_store, "import", "--format", "pppd", path} + options,
                      input);
}

QByteArray PppdImport::exported() const
{
    return connrecord({"--store", m_store, "export"}).output;
}
