// SPDX-License-Identifier: MIT
#pragma once

#include "ConnrecordRun.h"
#include "history/Store.h"

#include <QTemporaryDir>

/// One that lasted as long as it was connected.
history::Connection sampleConnection(const std::string &profile, std::int64_t start,
                                     std::int64_t seconds, std::int64_t uploaded,
                                     std::int64_t downloaded);

/// A new history of four connections: of "internet" with key 1 on 2024-05-01 and key 3 on
/// 2024-06-01, of "Internet" with key 2 in the last second of May, and without a profile
/// with key 4 on 2024-06-02, the third one of the SIM 8949000000000001234; their first seconds and
/// all times in Europe/Berlin.
class SampleHistory
{
public:
    SampleHistory();

    const QString &path() const { return m_path; }
    QString folder() const { return m_folder.path(); }
    ConnrecordRun run(const QStringList &arguments) const;
    /// Of the connections that are there.
    QList<int> keys() const;

private:
    QTemporaryDir m_folder;
    QString m_path;
};

/// Of the connections in what list --json tells.
QList<int> keysOf(const ConnrecordRun &run);
