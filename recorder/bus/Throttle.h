// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>

namespace recorder
{

/// Lets what is wanted often happen only now and then.
class Throttle : public QObject
{
    Q_OBJECT

public:
    /// At most once in such an interval.
    explicit Throttle(std::chrono::milliseconds interval, QObject *parent = nullptr);

    /// Asks for due(). It comes from the event loop: as soon as everything else is done
    /// that is waiting there, or when the interval since the last one is over.
    void request();

signals:
    void due();

private:
    void handleTimeout();

    const std::chrono::milliseconds m_interval;
    QTimer m_timer; ///< runs until due() may come again
    bool m_isRequested = false;
};

} // namespace recorder
