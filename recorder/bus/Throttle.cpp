// SPDX-License-Identifier: MIT
#include "recorder/bus/Throttle.h"

#include <utility>

namespace recorder
{

Throttle::Throttle(std::chrono::milliseconds interval, QObject *parent)
    : QObject(parent)
    , m_interval(interval)
    , m_timer(this)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Throttle::handleTimeout);
}

void Throttle::request()
{
    m_isRequested = true;
    if (!m_timer.isActive())
        m_timer.start(0);
}

void Throttle::handleTimeout()
{
    if (!std::exchange(m_isRequested, false))
        return;
    m_timer.start(m_interval);
    emit due();
}

} // namespace recorder
