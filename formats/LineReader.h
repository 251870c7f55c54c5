// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <cstdint>
#include <string>
#include <string_view>

class QIODevice;

namespace formats
{

/// Reads a device line by line, each line as the bytes before its line feed.
class LineReader
{
public:
    /// What of a line is longer than `longestLine` bytes is passed over.
    explicit LineReader(QIODevice &device, std::size_t longestLine = std::string_view::npos);

    /// Whether there is one more line, which line() then gives.
    bool next();
    /// The next bytes, line feeds among them or not, fewer at the end of the device; what
    /// of them is longer than a line may be is passed over. Valid as line() is.
    std::string_view takeBytes(std::uint64_t count);
    /// Valid until next() is called again.
    std::string_view line() const { return m_line; }
    /// Counted from 1.
    std::int64_t lineNumber() const { return m_lineNumber; }
    std::int64_t bytesRead() const { return m_bytesRead; }
    /// Whether the lines ended because the device cannot be read.
    bool hasFailed() const { return m_hasFailed; }
    /// Throws InputError in that case, with a sentence that names the source.
    void checkReadToTheEnd(const std::string &name) const;

private:
    bool hasBytes();
    bool takeToLineFeed();

    QIODevice &m_device;
    std::size_t m_longestLine;
    QByteArray m_chunk;
    int m_chunkSize = 0;
    int m_position = 0;
    std::string m_line;
    std::int64_t m_lineNumber = 0;
    std::int64_t m_bytesRead = 0;
    bool m_hasFailed = false;
};

} // namespace formats
