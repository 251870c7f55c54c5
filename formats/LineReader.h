// SPDX-License-Identifier: MIT
#pragma once

#include "history/Sentence.h"

#include <QByteArray>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

class QIODevice;

namespace formats
{

/// Told how many bytes of the input have been read so far.
using ReadProgress = std::function<void(std::int64_t bytes)>;

/// Reads a device line by line, each line as the bytes before its line feed.
class LineReader
{
public:
    /// What of a line is longer than `longestLine` bytes is passed over. The progress is
    /// told in the middle of long lines too.
    explicit LineReader(QIODevice &device, std::size_t longestLine = std::string_view::npos,
                        ReadProgress progress = {});

    /// Whether there is one more line, which line() then gives.
    bool next();
    /// The next bytes, line feeds among them or not, fewer at the end of the device; what
    /// of them is longer than a line may be is passed over. Valid as line() is.
    std::string_view takeBytes(std::uint64_t count);
    /// Valid until next() is called again.
    std::string_view line() const { return m_line; }
    /// Counted from 1.
    std::int64_t lineNumber() const { return m_lineNumber; }
    /// Whether the lines ended because the device cannot be read.
    bool hasFailed() const { return m_hasFailed; }
    /// Throws InputError in that case, with a sentence that names the source.
    void checkReadToTheEnd(const history::Sentence &name) const;

private:
    bool hasBytes();
    bool takeToLineFeed();

    QIODevice &m_device;
    std::size_t m_longestLine;
    ReadProgress m_progress;
    QByteArray m_chunk;
    int m_chunkSize = 0;
    int m_position = 0;
    std::string m_line;
    std::int64_t m_lineNumber = 0;
    std::int64_t m_bytesRead = 0;
    bool m_hasFailed = false;
};

} // namespace formats
