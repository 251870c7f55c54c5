// SPDX-License-Identifier: MIT
#include "Ticks.h"

#include <algorithm>

namespace recorder
{

Ticks::Ticks(std::chrono::milliseconds interval, int ticksPerCheckpoint, QObject *parent)
    : QObject(parent)
    , m_interval(interval)
    , m_ticksPerCheckpoint(ticksPerCheckpoint)
    , m_timer(this)
{
    m_timer.setObjectName(QStringLiteral("ticks"));
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Ticks::handleTimeout);
}

void Ticks::setWatched(bool isWatched)
{
    m_isWatched = isWatched;
    const bool isSlow = m_timer.isActive() && m_step > 1;
    if (!isWatched || !isSlow)
        return;
    // Who begins to watch waits for one tick only, and the checkpoint comes early with it.
    m_ticksLeft = m_step = 1;
    m_timer.start(std::min(m_timer.remainingTimeAsDuration(), m_interval));
}

void Ticks::start()
{
    m_ticksLeft = m_ticksPerCheckpoint;
    startStep();
}

void Ticks::startStep()
{
    m_step = m_isWatched ? 1 : m_ticksLeft;
    m_timer.start(m_interval * m_step);
}

void Ticks::handleTimeout()
{
    m_ticksLeft -= m_step;
    const bool isCheckpoint = m_ticksLeft == 0;
    if (isCheckpoint)
        m_ticksLeft = m_ticksPerCheckpoint;
    startStep();
    emit ticked(isCheckpoint);
}

} // namespace recorder
