// SPDX-License-Identifier: MIT
#pragma once

#include "HistoryChange.h"
#include "recorder/bus/BusName.h"
#include "recorder/bus/Throttle.h"
#include "usage/PlanWarnings.h"

#include <QObject>
#include <QString>

#include <chrono>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace recorder
{
class ConnectionRecorder;
}

namespace common
{

class NotificationService;

/// Warns of data plans that are used up to a percentage that the user has named, while its
/// recorder, and no other program's, records: with a desktop notification for each plan, of the
/// highest of the percentages that are new, once in a period, whichever program gives it. Where
/// there is no notification service, or it refuses, or the user wants none
/// (arePlanWarningsWanted), that is not given: it comes as soon as there is one.
///
/// Looks at the plans when bytes have come into the history, and, while a line is up, when
/// another program has written into it; it does nothing else. Lives on the recorder's thread,
/// and is made when that has been started.
class PlanWarner : public QObject
{
    Q_OBJECT

public:
    /// Of the plans in the store at `storePath`, at most once in `interval`. The recorder
    /// must live longer.
    PlanWarner(const recorder::ConnectionRecorder &recorder, const QString &storePath,
               const QString &busAddress = recorder::sessionBusAddress(),
               std::chrono::milliseconds interval = std::chrono::seconds(5),
               QObject *parent = nullptr);
    ~PlanWarner() override;

    /// Notifications are in the user's language from now on, by the texts in this folder (see
    /// UserLanguage), which are loaded for that moment alone. As in the beginning, without a
    /// folder, they are in the program's, and so is all else.
    void setTranslations(const QString &folder) { m_translations = folder; }

public slots:
    /// The plans may stand otherwise.
    void requestCheck();

signals:
    /// It has looked at the plans.
    void checked();
    /// A warning that nobody has been given in this period, in one line; told once by this
    /// object, whether there is a notification service or not.
    void warned(const QString &text);
    /// Why plans cannot be looked at; once for each new reason.
    void failed(const QString &reason);

private:
    using ReachedPlans = std::vector<usage::ReachedPlan>;
    /// Plan, first day of the period, percentage and the amount it is of.
    using Warning = std::tuple<std::int64_t, history::JulianDay, int, std::int64_t>;
    struct Refused {
        usage::ReachedPlan plan;
        std::vector<int> percentages;
    };

    void lookForChange();
    void check();
    void warn();
    void show(const usage::ReachedPlan &reached, const std::vector<int> &percentages);
    void returnRefused();
    void lookForService();
    /// Unless the store cannot be read.
    template <typename Action>
    void withReachedPlans(Action action);
    void tellOnce(const usage::ReachedPlan &reached, int percent);
    void fail(const history::StoreError &error);

    const recorder::ConnectionRecorder &m_recorder;
    const std::string m_storePath;
    HistoryChange m_change;
    recorder::Throttle m_throttle;
    const QString m_busAddress;
    QString m_translations;                         ///< the folder
    std::unique_ptr<NotificationService> m_service; ///< once there was something to warn of
    std::vector<Refused> m_refused;                 ///< still noted as given
    std::set<Warning> m_told;
    std::string m_failure;
};

} // namespace common
