// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>

namespace recorder
{

/// Sets off, while it runs, what a recorder does from time to time: every so many ticks
/// are a checkpoint. While nobody watches, only these come.
class Ticks : public QObject
{
    Q_OBJECT

public:
    Ticks(std::chrono::milliseconds interval, int ticksPerCheckpoint, QObject *parent = nullptr);

    /// In the beginning, somebody watches. However often this changes, a checkpoint never
    /// comes later than after all its ticks.
    void setWatched(bool isWatched);

    bool areRunning() const { return m_timer.isActive(); }
    /// The next checkpoint comes after all its ticks.
    void start();
    void stop() { m_timer.stop(); }

signals:
    void ticked(bool isCheckpoint);

private:
    void handleTimeout();
    void startStep();

    const std::chrono::milliseconds m_interval;
    const int m_ticksPerCheckpoint;
    QTimer m_timer;
    bool m_isWatched = true;
    int m_ticksLeft = 0; ///< until the checkpoint
    int m_step = 0;      ///< ticks that pass before the timer's end
};

} // namespace recorder
