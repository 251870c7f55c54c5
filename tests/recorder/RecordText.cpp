// SPDX-License-Identifier: MIT
#include "RecordText.h"

#include "history/ConnectionFields.h"

using history::Connection;
using history::OpenConnection;
using history::Store;

QString textOf(const Connection &connection)
{
    return QStringLiteral("%1 up %2 down %3 %4")
        .arg(QString::fromStdString(connection.interfaceName))
        .arg(connection.uploadedBytes)
        .arg(connection.downloadedBytes)
        .arg(QString::fromStdString(connection.ending));
}

QString ownerOf(const Connection &connection)
{
    QStringList texts;
    history::forEachField(history::detailFields, [&](const auto &field) {
        texts.append(QString::fromStdString(connection.*field.member));
    });
    return texts.join(' ');
}

std::vector<Connection> connectionsIn(const QString &storePath)
{
    return Store::openForReading(storePath.toStdString()).value().list().value();
}

QStringList recordsIn(const QString &storePath)
{
    QStringList texts;
    for (const Connection &each : connectionsIn(storePath))
        texts.append(textOf(each));
    return texts;
}

std::vector<OpenConnection> openRowsIn(const QString &storePath)
{
    const auto store = Store::openForReading(storePath.toStdString());
    return store.value().listOpen().value();
}

QStringList recordsSeenBy(const QSignalSpy &disconnections)
{
    QStringList texts;
    for (const QVariantList &arguments : disconnections)
        texts.append(textOf(arguments.first().value<Connection>()));
    return texts;
}

recorder::Problem lastProblemSeenBy(const QSignalSpy &failures)
{
    return failures.last().first().value<recorder::Problem>();
}
