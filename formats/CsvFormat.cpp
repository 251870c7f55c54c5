// SPDX-License-Identifier: MIT
#include "CsvFormat.h"

#include "CsvReader.h"
#include "FieldValue.h"
#include "LineReader.h"
#include "Utf8Text.h"
#include "usage/CalendarTime.h"

#include <algorithm>
#include <array>
#include <limits>

namespace formats
{

namespace
{

enum Column : std::size_t {
    Profile,
    Start,
    End,
    ConnectedSeconds,
    UploadedBytes,
    DownloadedBytes,
    Ending,
    Interface,
    ColumnCount
};

constexpr std::array<const char *, ColumnCount> names = {
    "profile",          "start",  "end",      "connected_seconds", "uploaded_bytes",
    "downloaded_bytes", "ending", "interface"};

constexpr std::size_t longestShortText = 31;
constexpr std::int64_t largestByteCount = std::numeric_limits<std::int64_t>::max();

std::string header()
{
    std::string line;
    for (const char *const name : names)
        line += (line.empty() ? "" : ",") + std::string(name);
    return line;
}

std::string quoted(const std::string &text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos)
        return text;
    std::string result = "\"";
    for (const char character : text)
        result += character == '"' ? std::string("\"\"") : std::string(1, character);
    return result + '"';
}

std::string line(const history::Connection &connection)
{
    return quoted(connection.profile) + ',' + usage::utcText(connection.startUtc).toStdString() +
           ',' + usage::utcText(connection.endUtc).toStdString() + ',' +
           std::to_string(connection.connectedSeconds) + ',' +
           std::to_string(connection.uploadedBytes) + ',' +
           std::to_string(connection.downloadedBytes) + ',' + quoted(connection.ending) + ',' +
           quoted(connection.interfaceName) + '\n';
}

/// One row of a file on its way to a connection.
class RowReader
{
public:
    explicit RowReader(const CsvRow &row)
        : m_row(row)
    {
    }

    history::Connection connection() const;
    void checkHeader() const;
    void checkColumnCount() const;

private:
    [[noreturn]] void fail(std::size_t column, const std::string &reason) const;
    void checkBytes(std::size_t column) const;
    const std::string &shortText(Column column) const;
    template <typename Read>
    std::int64_t value(Column column, Read read) const;
    std::int64_t number(Column column, std::int64_t largest) const;
    std::int64_t time(Column column) const;
    std::int64_t endTime(std::int64_t startUtc) const;

    const CsvRow &m_row;
};

history::Connection RowReader::connection() const
{
    checkColumnCount();
    for (std::size_t column = 0; column < ColumnCount; ++column)
        checkBytes(column);
    history::Connection connection;
    connection.profile = m_row[Profile].text;
    connection.startUtc = time(Start);
    connection.endUtc = endTime(connection.startUtc);
    connection.connectedSeconds = number(ConnectedSeconds, history::largestDuration);
    connection.uploadedBytes = number(UploadedBytes, largestByteCount);
    connection.downloadedBytes = number(DownloadedBytes, largestByteCount);
    connection.ending = shortText(Ending);
    connection.interfaceName = shortText(Interface);
    return connection;
}

void RowReader::checkHeader() const
{
    for (std::size_t column = 0; column < ColumnCount; ++column) {
        if (column >= m_row.size() || m_row[column].text != names[column])
            fail(column, "the first line has to be the header " + header());
    }
    checkColumnCount();
}

void RowReader::fail(std::size_t column, const std::string &reason) const
{
    throw CsvError{m_row[std::min(column, m_row.size() - 1)].line, column, reason};
}

void RowReader::checkColumnCount() const
{
    if (m_row.size() != ColumnCount)
        fail(std::min<std::size_t>(m_row.size(), ColumnCount),
             "the line has " + std::to_string(m_row.size()) + " columns and should have " +
                 std::to_string(ColumnCount));
}

void RowReader::checkBytes(std::size_t column) const
{
    const std::string &text = m_row[column].text;
    if (text.find('\0') != std::string::npos)
        fail(column, "the text holds a NUL byte");
    if (!isUtf8(text))
        fail(column, "the text is not UTF-8");
}

const std::string &RowReader::shortText(Column column) const
{
    const std::string &text = m_row[column].text;
    if (text.size() > longestShortText)
        fail(column, "the text has " + std::to_string(text.size()) + " bytes, at most " +
                         std::to_string(longestShortText) + " are allowed");
    return text;
}

template <typename Read>
std::int64_t RowReader::value(Column column, Read read) const
{
    try {
        return read(m_row[column].text);
    } catch (const FieldError &error) {
        fail(column, error.reason);
    }
}

std::int64_t RowReader::number(Column column, std::int64_t largest) const
{
    return value(column, [largest](const std::string &text) { return fieldNumber(text, largest); });
}

std::int64_t RowReader::time(Column column) const
{
    return value(column, fieldTime);
}

std::int64_t RowReader::endTime(std::int64_t startUtc) const
{
    return value(End, [startUtc](const std::string &text) { return fieldEnd(text, startUtc); });
}

bool isBlank(const CsvRow &row)
{
    return row.size() == 1 && row.front().text.empty();
}

/// Blank lines are nothing at the end of a file, and wrong before it.
void checkIsBlankEnd(CsvReader &reader, const CsvRow &firstBlank)
{
    while (const auto row = reader.next()) {
        if (!isBlank(*row))
            RowReader(firstBlank).checkColumnCount();
    }
}

} // namespace

std::string csvColumnName(std::size_t column)
{
    return column < names.size() ? names[column] : std::to_string(column + 1);
}

QByteArray toCsv(const std::vector<history::Connection> &connections)
{
    QByteArray csv = QByteArray::fromStdString(header() + '\n');
    for (const history::Connection &connection : connections)
        csv += QByteArray::fromStdString(line(connection));
    return csv;
}

std::vector<history::Connection> connectionsFromCsv(LineReader &lines, const ReadProgress &progress)
{
    CsvReader reader(lines, ColumnCount);
    const auto firstRow = reader.next();
    if (!firstRow)
        throw CsvError{1, 0, "the file is empty, the first line has to be the header " + header()};
    RowReader(*firstRow).checkHeader();
    std::vector<history::Connection> connections;
    while (const auto row = reader.next()) {
        if (isBlank(*row)) {
            checkIsBlankEnd(reader, *row);
            break;
        }
        connections.push_back(RowReader(*row).connection());
        progress(lines.bytesRead());
    }
    return connections;
}

} // namespace formats
