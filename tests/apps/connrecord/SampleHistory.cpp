// SPDX-License-Identifier: MIT
#include "SampleHistory.h"

#include "history/Store.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace history;

namespace
{

Connection connection(const char *profile, std::int64_t start, std::int64_t seconds,
                      std::int64_t uploaded)
{
    Connection made;
    made.profile = profile;
    made.startUtc = start;
    made.endUtc = start + seconds;
    made.connectedSeconds = seconds;
    made.uploadedBytes = uploaded;
    made.downloadedBytes = 10 * uploaded;
    return made;
}

} // namespace

SampleHistory::SampleHistory()
    : m_path(m_folder.filePath("connections.db"))
{
    Connection withSim = connection("internet", 1717192800, 60, 4);
    withSim.sim = "8949000000000001234";
    auto opened = Store::openOrCreate(m_path.toStdString());
    const bool isFilled =
        opened && opened.value().addMissing({connection("internet", 1714514400, 60, 1),
                                             connection("Internet", 1717192799, 100000, 2), withSim,
                                             connection("", 1717279200, 60, 8)});
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
