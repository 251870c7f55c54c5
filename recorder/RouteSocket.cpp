// SPDX-License-Identifier: MIT
#include "RouteSocket.h"

#include <libmnl/libmnl.h>
#include <linux/rtnetlink.h>
#include <poll.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>

namespace recorder
{

namespace
{

/// Dumps come in datagrams of at most half of that.
constexpr std::size_t datagramSize = 65536;

/// Room for hundreds of messages, as far as the system grants it.
constexpr int queueSize = 1024 * 1024;

/// A message to the kernel with its fixed part, all zero.
template <typename Header>
class Request
{
public:
    Request(std::uint16_t type, std::uint16_t flags, std::uint32_t sequence)
        : m_message(mnl_nlmsg_put_header(m_buffer.data()))
        , m_header(static_cast<Header *>(mnl_nlmsg_put_extra_header(m_message, sizeof(Header))))
    {
        m_message->nlmsg_type = type;
        m_message->nlmsg_flags = static_cast<std::uint16_t>(NLM_F_REQUEST | flags);
        m_message->nlmsg_seq = sequence;
    }

    Header &header() { return *m_header; }

    int sendTo(mnl_socket *socket) const
    {
        return mnl_socket_sendto(socket, m_message, m_message->nlmsg_len) < 0 ? errno : 0;
    }

private:
    alignas(nlmsghdr) std::array<char, NLMSG_SPACE(sizeof(Header))> m_buffer = {};
    nlmsghdr *m_message;
    Header *m_header;
};

} // namespace

void RouteSocket::Close::operator()(mnl_socket *socket) const
{
    mnl_socket_close(socket);
}

RouteSocket::RouteSocket()
    : m_buffer(datagramSize)
{
}

RouteSocket::~RouteSocket() = default;

int RouteSocket::open()
{
    m_socket.reset(mnl_socket_open2(NETLINK_ROUTE, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!m_socket)
        return errno;
    const int size = queueSize;
    setsockopt(descriptor(), SOL_SOCKET, SO_RCVBUF, &size, sizeof(size));
    const unsigned groups = RTMGRP_LINK | RTMGRP_IPV4_IFADDR | RTMGRP_IPV6_IFADDR;
    return mnl_socket_bind(m_socket.get(), groups, MNL_SOCKET_AUTOPID) < 0 ? errno : 0;
}

int RouteSocket::descriptor() const
{
    return mnl_socket_get_fd(m_socket.get());
}

int RouteSocket::requestLinks(std::uint32_t sequence)
{
    return Request<ifinfomsg>(RTM_GETLINK, NLM_F_DUMP, sequence).sendTo(m_socket.get());
}

int RouteSocket::requestAddresses(std::uint32_t sequence)
{
    return Request<ifaddrmsg>(RTM_GETADDR, NLM_F_DUMP, sequence).sendTo(m_socket.get());
}

int RouteSocket::requestLink(int linkIndex, std::uint32_t sequence)
{
    Request<ifinfomsg> request(RTM_GETLINK, 0, sequence);
    request.header().ifi_index = linkIndex;
    return request.sendTo(m_socket.get());
}

bool RouteSocket::waitForMessages(int timeoutMilliseconds) const
{
    pollfd descriptorToPoll = {descriptor(), POLLIN, 0};
    int count = 0;
    do {
        count = poll(&descriptorToPoll, 1, timeoutMilliseconds);
    } while (count < 0 && errno == EINTR);
    return count > 0;
}

RouteSocket::Outcome RouteSocket::receive(const std::function<void(const nlmsghdr &)> &handle)
{
    sockaddr_nl sender = {};
    iovec place = {m_buffer.data(), m_buffer.size()};
    msghdr datagram = {};
    datagram.msg_name = &sender;
    datagram.msg_namelen = sizeof(sender);
    datagram.msg_iov = &place;
    datagram.msg_iovlen = 1;
    const ssize_t size = recvmsg(descriptor(), &datagram, 0);
    if (size < 0) {
        if (errno == EAGAIN || errno == EINTR)
            return Outcome::Nothing;
        return errno == ENOBUFS ? Outcome::Overrun : Outcome::Failed;
    }
    // A datagram that did not fit is as lost as one that was not queued.
    if ((datagram.msg_flags & MSG_TRUNC) != 0)
        return Outcome::Overrun;
    // Programs with the right to it may write to this socket too.
    if (sender.nl_pid == 0)
        handleAll(static_cast<int>(size), handle);
    return Outcome::Received;
}

void RouteSocket::handleAll(int size, const std::function<void(const nlmsghdr &)> &handle) const
{
    const auto *message = reinterpret_cast<const nlmsghdr *>(m_buffer.data());
    while (mnl_nlmsg_ok(message, size)) {
        handle(*message);
        message = mnl_nlmsg_next(message, &size);
    }
}

} // namespace recorder
