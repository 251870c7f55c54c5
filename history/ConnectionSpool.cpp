// SPDX-License-Identifier: MIT
#include "ConnectionSpool.h"

#include "ConnectionFields.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <system_error>

namespace history
{

namespace
{

constexpr std::size_t mostInMemory = 1048576;

void check(bool hasSucceeded)
{
    if (!hasSucceeded)
        throw std::system_error(errno, std::generic_category());
}

/// Where the disk cannot make a file without a name, one that has it no longer.
int openNamelessFile(const std::string &folder)
{
    const int descriptor = open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor >= 0 || (errno != EOPNOTSUPP && errno != EISDIR))
        return descriptor;
    std::string path = folder + "/connections-XXXXXX";
    const int named = mkostemp(path.data(), O_CLOEXEC);
    if (named >= 0)
        unlink(path.c_str());
    return named;
}

std::FILE *openSpoolFile()
{
    const int descriptor = openNamelessFile(temporaryFolder());
    check(descriptor >= 0);
    std::FILE *const file = fdopen(descriptor, "w+");
    check(file != nullptr);
    return file;
}

template <typename Number>
void append(std::string &record, Number number)
{
    record.append(reinterpret_cast<const char *>(&number), sizeof number);
}

void appendValue(std::string &record, std::int64_t number)
{
    append(record, number);
}

void appendValue(std::string &record, const std::string &text)
{
    append(record, text.size());
    record += text;
}

template <typename Number>
Number takeNumber(std::string_view &record)
{
    Number number = {};
    std::memcpy(&number, record.data(), sizeof number);
    record.remove_prefix(sizeof number);
    return number;
}

void takeValue(std::string_view &record, std::int64_t &number)
{
    number = takeNumber<std::int64_t>(record);
}

void takeValue(std::string_view &record, std::string &text)
{
    const auto size = takeNumber<std::size_t>(record);
    text = record.substr(0, size);
    record.remove_prefix(size);
}

void appendConnection(std::string &record, const Connection &connection)
{
    forEachField(connectionFields,
                 [&](const auto &field) { appendValue(record, connection.*field.member); });
    append(record, connection.hours.size());
    for (const HourlyBytes &hour : connection.hours) {
        append(record, hour.hourUtc);
        append(record, hour.isRoaming);
        append(record, hour.uploadedBytes);
        append(record, hour.downloadedBytes);
    }
}

void takeConnection(std::string_view record, Connection &connection)
{
    forEachField(connectionFields,
                 [&](const auto &field) { takeValue(record, connection.*field.member); });
    connection.hours.resize(takeNumber<std::size_t>(record));
    for (HourlyBytes &hour : connection.hours) {
        hour.hourUtc = takeNumber<std::int64_t>(record);
        hour.isRoaming = takeNumber<bool>(record);
        hour.uploadedBytes = takeNumber<std::int64_t>(record);
        hour.downloadedBytes = takeNumber<std::int64_t>(record);
    }
}

} // namespace

std::string temporaryFolder()
{
    const char *const folder = std::getenv("TMPDIR");
    return folder && *folder ? folder : "/var/tmp";
}

void ConnectionSpool::add(const Connection &connection)
{
    m_record.assign(sizeof(std::size_t), '\0');
    appendConnection(m_record, connection);
    const std::size_t size = m_record.size() - sizeof size;
    std::memcpy(m_record.data(), &size, sizeof size);
    if (!m_file && m_memory.size() + m_record.size() > mostInMemory) {
        m_file.reset(openSpoolFile());
        write(m_memory);
        m_memory = std::string();
    }
    write(m_record);
    m_starts = withStartOf(connection, m_starts);
    ++m_count;
}

void ConnectionSpool::write(std::string_view bytes)
{
    if (m_file)
        check(fwrite_unlocked(bytes.data(), 1, bytes.size(), m_file.get()) == bytes.size());
    else
        m_memory += bytes;
}

void ConnectionSpool::rewind()
{
    m_given = 0;
    m_position = 0;
    if (m_file)
        check(std::fseek(m_file.get(), 0, SEEK_SET) == 0);
}

bool ConnectionSpool::next(Connection &connection)
{
    if (m_given == m_count)
        return false;
    ++m_given;
    std::string_view size = read(sizeof(std::size_t));
    takeConnection(read(takeNumber<std::size_t>(size)), connection);
    return true;
}

std::string_view ConnectionSpool::read(std::size_t size)
{
    if (!m_file) {
        m_position += size;
        return std::string_view(m_memory).substr(m_position - size, size);
    }
    m_record.resize(size);
    check(fread_unlocked(m_record.data(), 1, size, m_file.get()) == size);
    return m_record;
}

} // namespace history
