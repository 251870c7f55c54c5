// SPDX-License-Identifier: MIT
#include "QuitOnSignal.h"

#include <QCoreApplication>

#include <sys/eventfd.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>

namespace refhost
{

namespace
{

constexpr int quittingSignals[] = {SIGINT, SIGTERM, SIGHUP};

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

} // namespace

QuitOnSignal::QuitOnSignal()
    : m_notifier(openWakeUpEvent(), QSocketNotifier::Read)
{
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] {
        m_notifier.setEnabled(false);
        QCoreApplication::exit(0);
    });
    struct sigaction action = {};
    action.sa_handler = wakeUp;
    action.sa_flags = SA_RESETHAND | SA_RESTART;
    for (const int signal : quittingSignals)
        sigaction(signal, &action, nullptr);
}

QuitOnSignal::~QuitOnSignal()
{
    for (const int signal : quittingSignals)
        std::signal(signal, SIG_DFL);
    close(wakeUpEvent);
    wakeUpEvent = -1;
}

} // namespace refhost
