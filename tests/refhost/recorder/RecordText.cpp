// SPDX-License-Identifier: MIT
#include "RecordText.h"

using refhost::Connection;
using refhost::OpenConnection;
using refhost::StatisticsStore;

QString textOf(const Connection &connection)
{
    return QStringLiteral("%1 up %2 down %3 %4")
        .arg(QString::fromStdString(connection.interfaceName))
        .arg(connection.uploadedBytes)
        .arg(connection.downloadedBytes)
        .arg(QString::fromStdString(connection.ending));
}

QStringList recordsIn(const QString &storePath)
{
    const auto store = StatisticsStore::openForReading(storePath.toStdString());
    const auto list = store.value().list();
    QStringList texts;
    for (const Connection &each : list.value())
        texts.append(textOf(each));
    return texts;
}

std::vector<OpenConnection> openRowsIn(const QString &storePath)
{
    const auto store = StatisticsStore::openForReading(storePath.toStdString());
    return store.value().listOpen().value();
}

QStringList recordsSeenBy(const QSignalSpy &disconnections)
{
    QStringList texts;
    for (const QVariantList &arguments : disconnections)
        texts.append(textOf(arguments.first().value<Connection>()));
    return texts;
}
