// SPDX-License-Identifier: MIT
#pragma once

#include "FakeClock.h"
#include "FakeLinks.h"
#include "FakePorts.h"
#include "RecordText.h"
#include "recorder/ConnectionRecorder.h"

#include <QObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <string>
#include <vector>

/// For what a checkpoint brings: a loaded machine is slow.
constexpr int checkpointTimeout = 30000;

/// The row that an earlier process has left open for the link of this index.
history::OpenConnection rowOf(const std::string &bootId, int linkIndex);

/// A recorder on links and clocks of the test's, and a store of its own, for each test
/// function.
class RecorderTest : public QObject
{
    Q_OBJECT

protected slots:
    void init();
    void cleanup();

protected:
    bool start(const QStringList &interfaceNames = {});
    void connectLink(int index, const std::string &name, std::int64_t uploaded,
                     std::int64_t downloaded);
    void addRow(const history::OpenConnection &row);
    /// As a damaged disk might.
    void changeRow(int interfaceIndex, const QString &change);
    history::Connection firstRecord();

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    std::vector<recorder::LinkNews> m_atStart;
    FakeClock m_clockAtStart;
    FakeLinks *m_links = nullptr; ///< the recorder's
    FakeClock *m_clock = nullptr; ///< the recorder's
    FakePorts *m_ports = nullptr; ///< the recorder's
    std::unique_ptr<recorder::ConnectionRecorder> m_recorder;
    std::unique_ptr<QSignalSpy> m_connections;
    std::unique_ptr<QSignalSpy> m_disconnections;
    std::unique_ptr<QSignalSpy> m_failures;
};
