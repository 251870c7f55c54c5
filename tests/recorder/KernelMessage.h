// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <libmnl/libmnl.h>
#include <linux/netlink.h>

#include <array>
#include <cstdint>

/// A message as the kernel lays it out.
class KernelMessage
{
public:
    explicit KernelMessage(std::uint16_t type)
        : m_message(mnl_nlmsg_put_header(m_buffer.data()))
    {
        m_message->nlmsg_type = type;
    }

    template <typename Header>
    void putHeader(const Header &header)
    {
        *static_cast<Header *>(mnl_nlmsg_put_extra_header(m_message, sizeof(Header))) = header;
    }
    void putAttribute(std::uint16_t type, const QByteArray &bytes)
    {
        mnl_attr_put(m_message, type, static_cast<size_t>(bytes.size()), bytes.constData());
    }

    void putByte(std::uint16_t type, int value)
    {
        putAttribute(type, QByteArray(1, static_cast<char>(value)));
    }

    const nlmsghdr &header() const { return *m_message; }

private:
    alignas(nlmsghdr) std::array<char, 1024> m_buffer = {};
    nlmsghdr *m_message;
};
