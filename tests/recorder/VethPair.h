// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A mobile interface "wwan0" whose line ends in "far0", both with an address and
/// fixed neighbours, so that nothing passes but what a test sends. It is gone with
/// this object.
class VethPair
{
public:
    VethPair();
    /// The pair of these names that the network has had from the beginning, and keeps.
    struct IsThere {
    };
    explicit VethPair(IsThere);
    ~VethPair();
    VethPair(const VethPair &) = delete;
    VethPair &operator=(const VethPair &) = delete;

    bool isMade() const { return m_isMade; }

    /// Switches wwan0 on and waits until both ends carry traffic.
    bool goUp() const;
    bool goDown() const;
    /// Each sends datagrams of `size` bytes over the line.
    bool upload(int count, int size) const;
    bool download(int count, int size) const;

    /// What the kernel counts for so many of them.
    static qint64 bytesOf(int count, int size);

private:
    const bool m_isOwn;
    bool m_isMade;
};
