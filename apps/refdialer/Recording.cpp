// SPDX-License-Identifier: MIT
#include "Recording.h"

#include "LineState.h"
#include "apps/common/PlanWarner.h"
#include "apps/common/ProblemText.h"
#include "recorder/ConnectionRecorder.h"
#include "recorder/bus/RecorderClient.h"
#include "recorder/bus/RecorderService.h"

namespace refdialer
{

using recorder::RecorderClient;
using recorder::RecorderService;

Recording::Recording(const QString &storePath, const QStringList &interfaceNames,
                     const QString &profile, LineState &state)
    : m_storePath(storePath)
    , m_state(state)
    , m_recorder(new recorder::ConnectionRecorder(storePath, interfaceNames))
{
    QObject::connect(m_recorder, &recorder::ConnectionRecorder::connected, &m_state,
                     &LineState::begin);
    QObject::connect(m_recorder, &recorder::ConnectionRecorder::stateChanged, &m_state,
                     &LineState::update);
    QObject::connect(m_recorder, &recorder::ConnectionRecorder::disconnected, &m_state,
                     [&state](const history::Connection &, qint64 id) { state.end(id); });
    QObject::connect(m_recorder, &recorder::ConnectionRecorder::failed, &m_state,
                     [&state](const recorder::Problem &problem) {
                         state.setProblem(common::problemText(problem));
                     });
    QObject::connect(m_recorder, &recorder::ConnectionRecorder::succeeded, &m_state,
                     [&state] { state.setProblem(QString()); });
    QObject::connect(m_recorder, &recorder::ConnectionRecorder::started, &m_state,
                     [&state] { state.setWatched(true); });
    QObject::connect(m_recorder, &recorder::ConnectionRecorder::stopped, &m_state,
                     [&state] { state.setWatched(false); });
    m_recorder->setProfileName(profile);
    m_recorder->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, m_recorder, &QObject::deleteLater);
    m_thread.start();
}

Recording::~Recording()
{
    std::optional<recorder::Problem> loss;
    QMetaObject::invokeMethod(
        m_recorder, [this] { return endOnItsThread(); }, Qt::BlockingQueuedConnection, &loss);
    if (loss)
        qWarning("%s", qUtf8Printable(common::problemText(*loss)));
    m_thread.quit();
    m_thread.wait();
}

void Recording::start()
{
    bool hasStarted = false;
    QMetaObject::invokeMethod(
        m_recorder, [this] { return startOnItsThread(); }, Qt::BlockingQueuedConnection,
        &hasStarted);
    m_state.setWatched(hasStarted);
}

void Recording::checkPlans()
{
    QMetaObject::invokeMethod(
        m_recorder,
        [this] {
            if (m_planWarner)
                m_planWarner->requestCheck();
        },
        Qt::QueuedConnection);
}

bool Recording::startOnItsThread()
{
    const bool hasStarted = m_recorder->start();
    m_service = std::make_unique<RecorderService>(
        *m_recorder, m_storePath, RecorderService::Place::Foreground, common::problemText);
    m_client =
        std::make_unique<RecorderClient>(m_storePath, [this] { return m_service->uniqueName(); });
    QObject::connect(m_client.get(), &RecorderClient::changed, &m_state, &LineState::follow);
    QObject::connect(m_client.get(), &RecorderClient::ended, &m_state, &LineState::endFollowed);
    m_service->start();
    m_client->start();
    warnOfPlans();
    return hasStarted;
}

void Recording::warnOfPlans()
{
    m_planWarner = std::make_unique<common::PlanWarner>(*m_recorder, m_storePath);
    QObject::connect(m_planWarner.get(), &common::PlanWarner::failed, &m_state,
                     [](const QString &reason) { qWarning("%s", qUtf8Printable(reason)); });
}

/// Who misses this recorder on the bus finds everything in the store.
std::optional<recorder::Problem> Recording::endOnItsThread()
{
    std::optional<recorder::Problem> loss = m_recorder->end();
    m_planWarner.reset();
    m_client.reset();
    m_service.reset();
    return loss;
}

} // namespace refdialer
