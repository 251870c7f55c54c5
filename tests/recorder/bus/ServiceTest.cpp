// SPDX-License-Identifier: MIT
#include "ServiceTest.h"

using recorder::ConnectionRecorder;
using recorder::Problem;
using recorder::RecorderService;

void ServiceTest::init()
{
    RecorderTest::init();
    m_busFolder = std::make_unique<QTemporaryDir>();
    m_bus = std::make_unique<PrivateBus>(m_busFolder->path());
    QVERIFY(m_bus->start());
}

void ServiceTest::cleanup()
{
    m_client.reset();
    m_service.reset();
    m_bus.reset();
    m_busFolder.reset();
    RecorderTest::cleanup();
}

void ServiceTest::publish(std::chrono::milliseconds interval, RecorderService::Place place)
{
    start();
    m_service = makeService(*m_recorder, interval, place);
    m_service->start();
    m_client = makeClient();
    QTRY_VERIFY(m_client->isServiceThere());
}

std::unique_ptr<RecorderService> ServiceTest::makeService(ConnectionRecorder &recorder,
                                                          std::chrono::milliseconds interval,
                                                          RecorderService::Place place) const
{
    const auto problemText = [](const Problem &problem) {
        return QStringLiteral("problem %1").arg(int(problem.kind));
    };
    return std::make_unique<RecorderService>(recorder, m_path, place, problemText, m_bus->address(),
                                             interval);
}

std::unique_ptr<BusClient> ServiceTest::makeClient() const
{
    return std::make_unique<BusClient>(m_bus->address(), serviceName());
}

void ServiceTest::move(std::int64_t uploaded, std::int64_t downloaded)
{
    m_clock->pass(1000);
    m_links->requests.clear();
    QTRY_VERIFY(!m_links->requests.empty());
    m_links->tell(runningLink(7, "ppp0", uploaded, downloaded));
}
