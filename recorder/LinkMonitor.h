// SPDX-License-Identifier: MIT
#pragma once

#include "LinkSource.h"
#include "RouteSocket.h"

#include <cstdint>

class QSocketNotifier;

namespace recorder
{

/// The kernel's own news about links and addresses. When they come faster than
/// they are read, some are lost; a new dump then finds what has changed. So it is
/// when the socket fails: it is opened again.
class LinkMonitor : public LinkSource
{
    Q_OBJECT

public:
    /// Device types come from this folder.
    explicit LinkMonitor(const std::string &deviceFolder = "/sys/class/net",
                         QObject *parent = nullptr);

    /// Waits until the first dump is complete, which takes milliseconds.
    bool start() override;
    std::vector<Link> links() const override { return m_table.links(); }
    void requestCounters(int linkIndex) override;
    void deliverPending() override;

private:
    enum class Stage { Idle, DumpingLinks, DumpingAddresses, Watching, Failed };

    bool open();
    void watchSocket();
    void resume(int systemError);
    void receiveAll();
    void handle(const nlmsghdr &message);
    void handleDump(const nlmsghdr &message);
    void apply(const nlmsghdr &message);
    void beginDump();
    void continueDump();
    void endDump();
    void fail(int systemError);

    RouteSocket m_socket;
    QSocketNotifier *m_notifier = nullptr;
    LinkTable m_table;
    Stage m_stage = Stage::Idle;
    std::uint32_t m_sequence = 1; ///< of the dump; single requests have 1
    bool m_mustDumpAgain = false;
};

} // namespace recorder
