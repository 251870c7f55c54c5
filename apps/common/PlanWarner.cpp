// SPDX-License-Identifier: MIT
#include "PlanWarner.h"

#include "NotificationService.h"
#include "RecordingChoices.h"
#include "StoreErrorText.h"
#include "UserLanguage.h"
#include "WarningText.h"
#include "history/Store.h"
#include "recorder/ConnectionRecorder.h"

#include <QFile>
#include <QStringList>

#include <ctime>
#include <optional>
#include <utility>

namespace common
{

using history::Store;
using recorder::ConnectionRecorder;
using usage::ReachedPlan;

PlanWarner::PlanWarner(const ConnectionRecorder &recorder, const QString &storePath,
                       const QString &busAddress, std::chrono::milliseconds interval,
                       QObject *parent)
    : QObject(parent)
    , m_recorder(recorder)
    , m_storePath(QFile::encodeName(storePath).toStdString())
    , m_change(m_storePath)
    , m_throttle(interval)
    , m_busAddress(busAddress)
{
    connect(&m_throttle, &recorder::Throttle::due, this, &PlanWarner::check);
    connect(&recorder, &ConnectionRecorder::started, this, &PlanWarner::requestCheck);
    connect(&recorder, &ConnectionRecorder::checkpointWritten, this, &PlanWarner::requestCheck);
    connect(&recorder, &ConnectionRecorder::disconnected, this, &PlanWarner::requestCheck);
    connect(&recorder, &ConnectionRecorder::connected, this, &PlanWarner::lookForChange);
    connect(&recorder, &ConnectionRecorder::stateChanged, this, &PlanWarner::lookForChange);
    requestCheck();
}

PlanWarner::~PlanWarner() = default;

/// At a tick that there is anyway: nothing else would tell of a plan that was made or
/// changed, or of an import.
void PlanWarner::lookForChange()
{
    if (m_change.isNew())
        requestCheck();
}

void PlanWarner::requestCheck()
{
    m_throttle.request();
}

void PlanWarner::check()
{
    // What has been written so far is looked at now.
    m_change.isNew();
    returnRefused();
    bool isAnyDue = false;
    withReachedPlans([this, &isAnyDue](const Store &store, const ReachedPlans &reached) {
        m_failure.clear();
        if (!m_recorder.isRecording())
            return;
        for (const ReachedPlan &each : reached) {
            const auto pending = usage::pendingWarnings(store, each);
            if (!pending)
                return fail(pending.error());
            if (!pending.value().empty()) {
                isAnyDue = true;
                tellOnce(each, pending.value().back());
            }
        }
    });
    // Not given yet, and so still to come once they are wanted again.
    if (isAnyDue && arePlanWarningsWanted())
        lookForService();
    emit checked();
}

/// What comes before the service is there is not given yet.
void PlanWarner::lookForService()
{
    if (m_service)
        return m_service->look();
    m_service = std::make_unique<NotificationService>(m_busAddress);
    connect(m_service.get(), &NotificationService::found, this, &PlanWarner::warn);
}

/// A warning is noted as given before it is shown, and that is undone if it is refused: who is
/// killed in between loses it, but nobody gets it twice.
void PlanWarner::warn()
{
    if (!m_recorder.isRecording() || !arePlanWarningsWanted())
        return;
    withReachedPlans([this](Store &store, const ReachedPlans &reached) {
        for (const ReachedPlan &each : reached) {
            const auto taken = usage::takeWarnings(store, each);
            if (!taken)
                return fail(taken.error());
            if (!taken.value().empty())
                show(each, taken.value());
        }
    });
}

/// The highest of the percentages is enough.
void PlanWarner::show(const ReachedPlan &reached, const std::vector<int> &percentages)
{
    std::optional<UserLanguage> language;
    if (!m_translations.isEmpty())
        language.emplace(m_translations);
    m_service->show({warningTitle(reached, percentages.back()), warningDetails(reached),
                     reached.status.isSpent()},
                    [this, refused = Refused{reached, percentages}] {
                        m_refused.push_back(refused);
                        returnRefused();
                    });
}

/// As soon as that can be written.
void PlanWarner::returnRefused()
{
    if (m_refused.empty())
        return;
    auto store = Store::openForWatching(m_storePath);
    if (!store)
        return fail(store.error());
    while (!m_refused.empty()) {
        const auto &[reached, percentages] = m_refused.back();
        const auto returned = usage::returnWarnings(store.value(), reached, percentages);
        if (!returned)
            return fail(returned.error());
        m_refused.pop_back();
    }
}

template <typename Action>
void PlanWarner::withReachedPlans(Action action)
{
    auto store = Store::openForWatching(m_storePath);
    if (!store)
        return fail(store.error());
    const auto reached = usage::reachedPlans(store.value(), std::time(nullptr));
    if (!reached)
        return fail(reached.error());
    action(store.value(), reached.value());
}

void PlanWarner::tellOnce(const ReachedPlan &reached, int percent)
{
    const Warning warning(reached.plan.key, reached.status.period.first.toJulianDay(), percent,
                          reached.plan.amount.value_or(0));
    if (m_told.insert(warning).second)
        emit warned(warningText(reached, percent));
}

/// A store that is locked is soon free again.
void PlanWarner::fail(const history::StoreError &error)
{
    if (error.kind == history::StoreError::Kind::Locked)
        m_throttle.request();
    else if (std::exchange(m_failure, error.message) != error.message)
        emit failed(storeErrorText(error));
}

} // namespace common
