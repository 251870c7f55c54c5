// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A PPP interface "ppp0" that lives as long as this object, like that of a dial-up
/// connection, and is deleted while it is connected. Its line is a file of packets.
class TunDevice
{
public:
    TunDevice();
    ~TunDevice();
    TunDevice(const TunDevice &) = delete;
    TunDevice &operator=(const TunDevice &) = delete;

    bool isMade() const { return m_isMade; }

    bool goUp() const;
    /// Each sends datagrams of `size` bytes; what is uploaded is read at the other
    /// end of the line, which is when the kernel counts it.
    bool upload(int count, int size) const;
    bool download(int count, int size) const;

    /// What the kernel counts for so many of them.
    static qint64 bytesOf(int count, int size);

private:
    int m_file;
    bool m_isMade;
};
