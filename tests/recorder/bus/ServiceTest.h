// SPDX-License-Identifier: MIT
#pragma once

#include "BusClient.h"
#include "PrivateBus.h"
#include "RecorderTest.h"
#include "recorder/bus/RecorderService.h"

#include <chrono>
#include <memory>

/// A recorder on links of the test's, and what a bus of the test's sees of it.
class ServiceTest : public RecorderTest
{
    Q_OBJECT

protected slots:
    void init();
    void cleanup();

protected:
    /// Starts the recorder and its service; nothing is told twice in such an interval.
    void
    publish(std::chrono::milliseconds interval = std::chrono::milliseconds(1),
            recorder::RecorderService::Place place = recorder::RecorderService::Place::Foreground);
    std::unique_ptr<recorder::RecorderService>
    makeService(recorder::ConnectionRecorder &recorder,
                std::chrono::milliseconds interval = std::chrono::milliseconds(1),
                recorder::RecorderService::Place place =
                    recorder::RecorderService::Place::Foreground) const;
    std::unique_ptr<BusClient> makeClient() const;
    QString serviceName() const { return recorder::RecorderService::nameFor(m_path); }
    /// Answers the recorder's next question for what ppp0, of index 7, has moved.
    void move(std::int64_t uploaded, std::int64_t downloaded);

    std::unique_ptr<QTemporaryDir> m_busFolder;
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<recorder::RecorderService> m_service;
    std::unique_ptr<BusClient> m_client;
};
