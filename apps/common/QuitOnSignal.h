// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <csignal>
#include <map>

namespace common
{

/// While it lives, SIGINT, SIGTERM and SIGHUP end the event loop, so that the
/// program cleans up as after its window was closed. A second signal of the same
/// kind ends the program at once. One that was ignored stays so. At most one at a
/// time.
class QuitOnSignal
{
public:
    QuitOnSignal();
    QuitOnSignal(const QuitOnSignal &) = delete;
    QuitOnSignal &operator=(const QuitOnSignal &) = delete;
    ~QuitOnSignal();

private:
    QSocketNotifier m_notifier;
    std::map<int, struct sigaction> m_former; ///< by signal
};

} // namespace common
