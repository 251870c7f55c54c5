// SPDX-License-Identifier: MIT
#include "SampleHistory.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace history;

Connection sampleConnection(const std::string &profile, std::int64_t start, std::int64_t seconds,
                            std::int64_t uploaded, std::int64_t downloaded)
{
    Connection made;
    made.profile = profile;
    made.startUtc = start;
    made.endUtc = start + seconds;
    made.connectedSeconds = seconds;
    made.uploadedBytes = uploaded;
    made.downloadedBytes = downloaded;
    return made;
}

SampleHistory::SampleHistory()
    : m_path(m_folder.filePath("connections.db"))
{
    Connection withSim = sampleConnection("internet", 1717192800, 60, 4, 40);
    withSim.sim = "8949000000000001234";
    auto opened = Store::openOrCreate(m_path.toStdString());
    const bool isFilled = opened && opened.value().addMissing(
                                        {sampleConnection("internet", 1714514400, 60, 1, 10),
                                         sampleConnection("Internet", 1717192799, 100000, 2, 20),
                                         withSim, sampleConnection("", 1717279200, 60, 8, 80)});
    if (!isFilled)
        qFatal("%s cannot be filled", qPrintable(m_path));
}

ConnrecordRun SampleHistory::run(const QStringList &arguments) const
{
    return connrecord(QStringList{"--store", m_path} + arguments);
}

QList<int> SampleHistory::keys() const
{
    return keysOf(run({"list", "--json"}));
}

QList<int> keysOf(const ConnrecordRun &run)
{
    QList<int> keys;
    for (const QJsonValue &each : run.json().array())
        keys << each.toObject().value("key").toInt();
    return keys;
}
