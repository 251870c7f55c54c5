// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

struct mnl_socket;
struct nlmsghdr;

namespace recorder
{

/// A netlink socket for links and addresses that never blocks, subscribed to all
/// news about them. What fails is told by a system error number.
class RouteSocket
{
public:
    RouteSocket();
    ~RouteSocket();
    RouteSocket(const RouteSocket &) = delete;
    RouteSocket &operator=(const RouteSocket &) = delete;

    /// 0 or the error, then nothing else may be called; in the place of a socket that
    /// was open.
    int open();
    int descriptor() const;

    /// Each asks for something under a sequence number that its answers carry, and
    /// returns 0 or the error.
    int requestLinks(std::uint32_t sequence);
    int requestAddresses(std::uint32_t sequence);
    int requestLink(int linkIndex, std::uint32_t sequence);

    enum class Outcome { Received, Nothing, Overrun, Failed };
    /// Waits until there is something to receive; false if nothing came in time.
    bool waitForMessages(int timeoutMilliseconds) const;
    /// Hands each message of one datagram of the kernel's to `handle`. Overrun: messages have
    /// been lost, those that were waiting already are still there.
    Outcome receive(const std::function<void(const nlmsghdr &)> &handle);

private:
    void handleAll(int size, const std::function<void(const nlmsghdr &)> &handle) const;

    struct Close {
        void operator()(mnl_socket *socket) const;
    };
    std::unique_ptr<mnl_socket, Close> m_socket;
    std::vector<char> m_buffer;
};

} // namespace recorder
