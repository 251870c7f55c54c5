// SPDX-License-Identifier: MIT
#include "LineReader.h"

#include "InputError.h"

#include <QIODevice>

#include <algorithm>
#include <cstring>
#include <utility>

namespace formats
{

namespace
{

constexpr int chunkBytes = 256 * 1024;

} // namespace

LineReader::LineReader(QIODevice &device, std::size_t longestLine, ReadProgress progress)
    : m_device(device)
    , m_longestLine(longestLine)
    , m_progress(std::move(progress))
    , m_chunk(chunkBytes, Qt::Uninitialized)
{
}

bool LineReader::next()
{
    m_line.clear();
    if (!hasBytes())
        return false;
    ++m_lineNumber;
    while (!takeToLineFeed() && hasBytes()) {
    }
    return !m_hasFailed;
}

std::string_view LineReader::takeBytes(std::uint64_t count)
{
    m_line.clear();
    while (count > 0 && hasBytes()) {
        const char *const start = m_chunk.constData() + m_position;
        const auto available = static_cast<std::uint64_t>(m_chunkSize - m_position);
        const auto length = static_cast<std::size_t>(std::min(count, available));
        m_lineNumber += std::count(start, start + length, '\n');
        m_line.append(start, std::min(length, m_longestLine - m_line.size()));
        m_position += static_cast<int>(length);
        count -= length;
    }
    return m_line;
}

void LineReader::checkReadToTheEnd(const history::Sentence &name) const
{
    if (m_hasFailed)
        throw notReadToTheEnd(name, m_device);
}

bool LineReader::hasBytes()
{
    if (m_position < m_chunkSize)
        return true;
    const qint64 count = m_device.read(m_chunk.data(), chunkBytes);
    m_hasFailed = count < 0;
    m_position = 0;
    m_chunkSize = static_cast<int>(std::max<qint64>(count, 0));
    m_bytesRead += m_chunkSize;
    if (m_progress)
        m_progress(m_bytesRead);
    return m_chunkSize > 0;
}

bool LineReader::takeToLineFeed()
{
    const char *const start = m_chunk.constData() + m_position;
    const auto available = static_cast<std::size_t>(m_chunkSize - m_position);
    const auto *const lineFeed = static_cast<const char *>(std::memchr(start, '\n', available));
    const std::size_t length = lineFeed ? static_cast<std::size_t>(lineFeed - start) : available;
    m_line.append(start, std::min(length, m_longestLine - m_line.size()));
    m_position += static_cast<int>(length) + (lineFeed ? 1 : 0);
    return lineFeed != nullptr;
}

} // namespace formats
