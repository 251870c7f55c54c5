// SPDX-License-Identifier: MIT
#include "QuitOnSignal.h"

#include <QCoreApplication>

#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>

namespace common
{

namespace
{

// A signal handler reaches nothing but what has static storage.
int wakeUpEvent = -1;

void wakeUp(int /*signal*/)
{
    const std::uint64_t one = 1;
    // Nothing can be done in a handler about a failure, which an eventfd does not
    // have as long as it is read.
    [[maybe_unused]] const auto written = write(wakeUpEvent, &one, sizeof one);
}

int openWakeUpEvent()
{
    wakeUpEvent = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    return wakeUpEvent;
}

/// Has a signal wake the program up, unless who started it had it ignored: nohup
/// does that, and a shell with what it runs in the background. Returns what the
/// signal did before.
struct sigaction handle(int signal)
{
    struct sigaction before = {};
    sigaction(signal, nullptr, &before);
    struct sigaction action = {};
    action.sa_handler = wakeUp;
    action.sa_flags = SA_RESETHAND | SA_RESTART;
    if (before.sa_handler != SIG_IGN)
        sigaction(signal, &action, nullptr);
    return before;
}

} // namespace

QuitOnSignal::QuitOnSignal()
    : m_notifier(openWakeUpEvent(), QSocketNotifier::Read)
{
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] {
        m_notifier.setEnabled(false);
        QCoreApplication::exit(0);
    });
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        m_former[signal] = handle(signal);
}

QuitOnSignal::~QuitOnSignal()
{
    for (const auto &[signal, action] : m_former)
        sigaction(signal, &action, nullptr);
    close(wakeUpEvent);
    wakeUpEvent = -1;
}

} // namespace common
