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
constexpr int listingTimeoutMilliseconds = 5000;

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
    while (m_stage == Stage::ListingLinks || m_stage == Stage::ListingAddresses) {
        if (m_socket.waitForMessages(listingTimeoutMilliseconds))
            receiveAll();
        else
            fail(ETIMEDOUT);
    }
    if (m_stage == Stage::Failed)
        return false;
    watchSocket();
    return true;
}

/// Begins to list everything on a new socket.
bool LinkMonitor::open()
{
    if (m_notifier) {
        m_notifier->setEnabled(false);
        m_notifier->deleteLater();
        m_notifier = nullptr;
    }
    const int error = m_socket.open();
    if (error == 0)
        beginListing();
    else
        fail(error);
    return error == 0;
}

void LinkMonitor::watchSocket()
{
    m_notifier = new QSocketNotifier(m_socket.descriptor(), QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &LinkMonitor::receiveAll);
}

/// What passes when it is done anew is not worth a word; what fails in the listing
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

void LinkMonitor::catchUp()
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
        // listing has to wait until then.
        if (outcome == RouteSocket::Outcome::Overrun)
            m_mustListAgain = true;
    } while (outcome == RouteSocket::Outcome::Received || outcome == RouteSocket::Outcome::Overrun);
    if (outcome == RouteSocket::Outcome::Failed)
        resume(errno);
    else if (m_mustListAgain && m_stage == Stage::Watching)
        beginListing();
}

void LinkMonitor::handle(const nlmsghdr &message)
{
    const bool isListing = m_stage == Stage::ListingLinks || m_stage == Stage::ListingAddresses;
    if (isListing && message.nlmsg_seq == m_sequence)
        handleListing(message);
    else
        apply(message);
}

void LinkMonitor::handleListing(const nlmsghdr &message)
{
    // Something changed in the middle of the listing, which may lack it.
    if ((message.nlmsg_flags & NLM_F_DUMP_INTR) != 0)
        m_mustListAgain = true;
    if (message.nlmsg_type == NLMSG_DONE)
        continueListing();
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

void LinkMonitor::beginListing()
{
    m_mustListAgain = false;
    m_table.beginListing();
    m_stage = Stage::ListingLinks;
    const int error = m_socket.requestLinks(++m_sequence);
    if (error != 0)
        fail(error);
}

void LinkMonitor::continueListing()
{
    if (m_mustListAgain) {
        beginListing();
    } else if (m_stage == Stage::ListingAddresses) {
        endListing();
    } else {
        m_stage = Stage::ListingAddresses;
        const int error = m_socket.requestAddresses(++m_sequence);
        if (error != 0)
            fail(error);
    }
}

void LinkMonitor::endListing()
{
    m_stage = Stage::Watching;
    for (const LinkChange &change : m_table.endListing())
        emit linkChanged(change);
}

void LinkMonitor::fail(int systemError)
{
    m_stage = Stage::Failed;
    if (m_notifier)
        m_notifier->setEnabled(false);
    emit failed(tr("The network interfaces cannot be watched (%1), so connections are not "
                   "recorded; that is tried again every other second.")
                    .arg(QString::fromStdString(std::generic_category().message(systemError))));
}

} // namespace recorder
