// SPDX-License-Identifier: MIT
#include "LinkMonitor.h"

#include "DeviceType.h"

#include <QSocketNotifier>

#include <libmnl/libmnl.h>
#include <linux/netlink.h>

#include <cerrno>
#include <system_error>

namespace recorder
{

namespace
{

constexpr std::uint32_t singleRequest = 1;

/// For the kernel's answer, which normally is there at once.
constexpr int dumpTimeoutMilliseconds = 5000;

/// The error in the message, 0 if it only says that all is well.
int errorIn(const nlmsghdr &message)
{
    if (message.nlmsg_type != NLMSG_ERROR || mnl_nlmsg_get_payload_len(&message) < sizeof(nlmsgerr))
        return 0;
    return -static_cast<const nlmsgerr *>(mnl_nlmsg_get_payload(&message))->error;
}

} // namespace

LinkMonitor::LinkMonitor(const std::string &deviceFolder, QObject *parent)
    : LinkSource(parent)
    , m_table([deviceFolder](int index, const std::string &name) {
        return deviceTypeIn(deviceFolder, index, name);
    })
{
}

bool LinkMonitor::start()
{
    m_table.forgetAll();
    if (!open())
        return false;
    while (m_stage == Stage::DumpingLinks || m_stage == Stage::DumpingAddresses) {
        if (m_socket.waitForMessages(dumpTimeoutMilliseconds))
            receiveAll();
        else
            fail(ETIMEDOUT);
    }
    if (m_stage == Stage::Failed)
        return false;
    watchSocket();
    return true;
}

/// Begins to dump everything on a new socket.
bool LinkMonitor::open()
{
    if (m_notifier) {
        m_notifier->setEnabled(false);
        m_notifier->deleteLater();
        m_notifier = nullptr;
    }
    const int error = m_socket.open();
    if (error == 0)
        beginDump();
    else
        fail(error);
    return error == 0;
}

void LinkMonitor::watchSocket()
{
    m_notifier = new QSocketNotifier(m_socket.descriptor(), QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &LinkMonitor::receiveAll);
}

/// What passes when it is done anew is not worth a word; what fails in the dump
/// that follows is.
void LinkMonitor::resume(int systemError)
{
    if (m_stage != Stage::Watching)
        fail(systemError);
    else if (open())
        watchSocket();
}

void LinkMonitor::requestCounters(int linkIndex)
{
    // A request that finds no room is one of many; the next one is not far.
    if (m_stage != Stage::Failed)
        m_socket.requestLink(linkIndex, singleRequest);
}

void LinkMonitor::deliverPending()
{
    // The kernel answers before a request returns.
    if (m_stage == Stage::Watching)
        receiveAll();
}

void LinkMonitor::receiveAll()
{
    RouteSocket::Outcome outcome;
    do {
        outcome = m_socket.receive([this](const nlmsghdr &message) { handle(message); });
        // Messages go on being lost until all that wait have been read, so the
        // dump has to wait until then.
        if (outcome == RouteSocket::Outcome::Overrun)
            m_mustDumpAgain = true;
    } while (outcome == RouteSocket::Outcome::Received || outcome == RouteSocket::Outcome::Overrun);
    if (outcome == RouteSocket::Outcome::Failed)
        resume(errno);
    else if (m_mustDumpAgain && m_stage == Stage::Watching)
        beginDump();
}

void LinkMonitor::handle(const nlmsghdr &message)
{
    const bool isDumping = m_stage == Stage::DumpingLinks || m_stage == Stage::DumpingAddresses;
    if (isDumping && message.nlmsg_seq == m_sequence)
        handleDump(message);
    else
        apply(message);
}

void LinkMonitor::handleDump(const nlmsghdr &message)
{
    // Something changed in the middle of the dump, which may lack it.
    if ((message.nlmsg_flags & NLM_F_DUMP_INTR) != 0)
        m_mustDumpAgain = true;
    if (message.nlmsg_type == NLMSG_DONE)
        continueDump();
    else if (errorIn(message) != 0)
        fail(errorIn(message));
    else
        apply(message);
}

void LinkMonitor::apply(const nlmsghdr &message)
{
    const auto news = parseLinkMessage(message);
    if (!news)
        return;
    const auto change =
        std::visit([this](const auto &report) { return m_table.apply(report); }, *news);
    if (change)
        emit linkChanged(*change);
}

void LinkMonitor::beginDump()
{
    m_mustDumpAgain = false;
    m_table.beginDump();
    m_stage = Stage::DumpingLinks;
    const int error = m_socket.requestLinks(++m_sequence);
    if (error != 0)
        fail(error);
}

void LinkMonitor::continueDump()
{
    if (m_mustDumpAgain) {
        beginDump();
    } else if (m_stage == Stage::DumpingAddresses) {
        endDump();
    } else {
        m_stage = Stage::DumpingAddresses;
        const int error = m_socket.requestAddresses(++m_sequence);
        if (error != 0)
            fail(error);
    }
}

void LinkMonitor::endDump()
{
    m_stage = Stage::Watching;
    for (const LinkChange &change : m_table.endDump())
        emit linkChanged(change);
}

void LinkMonitor::fail(int systemError)
{
    m_stage = Stage::Failed;
    if (m_notifier)
        m_notifier->setEnabled(false);
    Problem problem;
    problem.kind = Problem::Kind::LinksUnwatchable;
    problem.reason = QString::fromStdString(std::generic_category().message(systemError));
    emit failed(problem);
}

} // namespace recorder
