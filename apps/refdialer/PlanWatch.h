// SPDX-License-Identifier: MIT
#pragma once

#include "StoreWorker.h"
#include "recorder/SystemClock.h"
#include "usage/StandingPlan.h"

#include <QDate>
#include <QObject>
#include <QString>
#include <QTimer>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace refdialer
{

/// How the data plans of a history stand, once they have been read for the first time. It
/// looks every second, on a thread of its own, whether anything has come into the history or
/// the day has changed, so a running connection is followed as closely as its recorder
/// writes it.
class PlanWatch : public QObject
{
    Q_OBJECT

public:
    explicit PlanWatch(
        const QString &storeFile,
        std::unique_ptr<recorder::SystemClock> clock = std::make_unique<recorder::SystemClock>(),
        QObject *parent = nullptr);

    /// By their names.
    const std::vector<usage::StandingPlan> &plans() const { return m_plans; }
    /// Whether that is known at all.
    bool isRead() const { return m_isRead; }
    /// Whether there is a history to have plans: read, and not just to be made some day.
    bool hasHistory() const { return m_isRead && m_occasion && m_occasion->revision != 0; }
    /// Why it is not known, a sentence for the user; empty if it is. While another program
    /// keeps the history locked, what was known before holds.
    QString problem() const { return m_problem; }

    /// The present moment, in seconds since 1970-01-01 00:00 UTC, and its local day.
    std::int64_t utc() const { return m_clock->utcSeconds(); }
    QDate today() const;

    /// To the same history.
    StoreWorker &store() { return m_store; }

    /// Looks now. Asking again before the answer is of no account.
    void look();
    /// Returns when the answer is there.
    void finish();

signals:
    /// Plans have been read anew, or cannot be read any more.
    void changed();

private:
    /// What they were read for; they are the same as long as this is.
    struct Occasion {
        std::uint64_t revision;
        std::int64_t minute; ///< of UTC
        int offset;          ///< of local time
        bool operator==(const Occasion &other) const;
    };
    /// Without plans if the occasion is the same.
    struct Answer {
        Occasion occasion;
        std::optional<std::vector<usage::StandingPlan>> plans;
    };

    static history::Result<Answer> readPlans(const history::Store &store, std::int64_t utc,
                                             const std::optional<Occasion> &former);
    void take(const history::Result<Answer> &answer);
    void fail(const history::StoreError &error);

    const std::unique_ptr<recorder::SystemClock> m_clock;
    StoreWorker m_store;
    QTimer m_timer;
    bool m_isLooking = false;
    bool m_isRead = false;
    std::optional<Occasion> m_occasion;
    std::vector<usage::StandingPlan> m_plans;
    QString m_problem;
};

} // namespace refdialer
