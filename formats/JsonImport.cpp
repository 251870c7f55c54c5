// SPDX-License-Identifier: MIT
#include "FieldValue.h"
#include "InputError.h"
#include "JsonFormat.h"
#include "JsonLine.h"
#include "SpooledImport.h"

#include <QByteArray>
#include <QIODevice>

#include <cstddef>
#include <iterator>
#include <optional>

namespace formats
{

namespace
{

using history::Sentence;
using history::translatable;

/// No connection with its hours is longer, in bytes of the file.
constexpr std::int64_t longestConnection = 16777216;
/// An array of connections, which have hours, which have members.
constexpr int deepestLevel = 3;

/// The bytes of a device one by one.
class DeviceBytes
{
public:
    DeviceBytes(QIODevice &device, const ReadProgress &progress)
        : m_device(device)
        , m_progress(progress)
    {
    }

    bool isAtEnd() { return m_position == m_piece.size() && !readPiece(); }
    char current() const { return m_piece[m_position]; }
    void next()
    {
        m_line += current() == '\n' ? 1 : 0;
        ++m_position;
        if (++m_sinceConnection > longestConnection)
            throw longerThan(longestConnection);
    }
    void startConnection() { m_sinceConnection = 0; }
    bool hasFailed() const { return m_hasFailed; }
    std::int64_t line() const { return m_line; }

private:
    bool readPiece()
    {
        constexpr qint64 pieceBytes = 65536;
        m_piece.resize(pieceBytes);
        const qint64 count = m_device.read(m_piece.data(), pieceBytes);
        m_hasFailed = count < 0;
        m_piece.resize(count < 0 ? 0 : count);
        m_position = 0;
        m_read += m_piece.size();
        m_progress(m_read);
        return !m_piece.isEmpty();
    }

    QIODevice &m_device;
    const ReadProgress &m_progress;
    QByteArray m_piece;
    decltype(m_piece.size()) m_position = 0;
    std::int64_t m_read = 0;
    std::int64_t m_sinceConnection = 0;
    std::int64_t m_line = 1;
    bool m_hasFailed = false;
};

/// These bytes for the parser of JSON; without a device, their end.
class ByteIterator
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char *;
    using reference = char;

    explicit ByteIterator(DeviceBytes *bytes = nullptr)
        : m_bytes(bytes)
    {
    }

    char operator*() const { return m_bytes->current(); }
    ByteIterator &operator++()
    {
        m_bytes->next();
        return *this;
    }
    bool operator==(const ByteIterator &other) const { return isAtEnd() == other.isAtEnd(); }
    bool operator!=(const ByteIterator &other) const { return !(*this == other); }

private:
    bool isAtEnd() const { return !m_bytes || m_bytes->isAtEnd(); }

    DeviceBytes *m_bytes;
};

class JsonImport : public SpooledImport
{
public:
    void read(const ImportSource &source, const ReadProgress &progress) override;

private:
    void parse(DeviceBytes &bytes);
    bool take(DeviceBytes &bytes, int level, Json::parse_event_t event, const Json &parsed);

    std::size_t m_taken = 0; ///< connections, finished or not
};

void JsonImport::read(const ImportSource &source, const ReadProgress &progress)
{
    DeviceBytes bytes(source.device, progress);
    std::optional<InputError> refusal;
    try {
        parse(bytes);
    } catch (const Json::exception &error) {
        refusal.emplace(Sentence{translatable("formats", "%1: %2. Nothing was imported."),
                                 {source.name, reasonOf(error)}});
    } catch (const FieldError &error) {
        refusal.emplace(
            Sentence{translatable("formats", "%1, connection %2: %3. Nothing was imported."),
                     {source.name, std::to_string(m_taken + 1), error.reason}});
    }
    if (bytes.hasFailed())
        throw notReadToTheEnd(source.name, source.device);
    if (refusal)
        throw *refusal;
}

void JsonImport::parse(DeviceBytes &bytes)
{
    const auto callback = [&](int level, Json::parse_event_t event, Json &parsed) {
        return take(bytes, level, event, parsed);
    };
    if (!Json::parse(ByteIterator(&bytes), ByteIterator(), callback).is_array())
        throw FieldError{translatable("formats", "the file has to be an array of objects"), true};
}

/// Whether the parser is to keep it: connections are done with when they end.
bool JsonImport::take(DeviceBytes &bytes, int level, Json::parse_event_t event, const Json &parsed)
{
    using Event = Json::parse_event_t;
    const bool isStart = event == Event::object_start || event == Event::array_start;
    if (isStart && level > deepestLevel)
        throw FieldError{translatable("formats", "it is nested more deeply than a connection"),
                         true};
    if (level == 1 && (event == Event::array_start || event == Event::value))
        throw noObject();
    if (level != 1 || event != Event::object_end)
        return true;
    if (isStillRunning(parsed))
        addRunning(bytes.line(), lineOf(parsed));
    else
        add(connectionFromJson(parsed));
    ++m_taken;
    bytes.startConnection();
    return false;
}

} // namespace

std::unique_ptr<ImportReader> jsonImport(const ImportOptions & /*options*/)
{
    return std::make_unique<JsonImport>();
}

} // namespace formats
