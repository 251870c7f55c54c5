// SPDX-License-Identifier: MIT
#include "CompressedInput.h"

#include <QByteArray>

#include <archive.h>
#include <archive_entry.h>
#include <sys/types.h>
#include <zlib.h>

#include <cerrno>
#include <string>
#include <utility>

namespace formats
{

namespace
{

using history::Part;
using history::Sentence;
using history::translatable;

constexpr int pieceBytes = 64 * 1024;

/// What a library says of an error; it may have nothing to say.
std::string wordsOf(const char *message)
{
    return message ? message : "";
}

/// A device that cannot go back, on another one that is read in pieces.
class Decompressor : public QIODevice
{
public:
    bool isSequential() const override { return true; }
    const Part &error() const { return m_error; }

protected:
    explicit Decompressor(QIODevice &compressed)
        : m_compressed(compressed)
        , m_piece(pieceBytes, '\0')
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    qint64 writeData(const char * /*data*/, qint64 /*size*/) override { return -1; }

    /// The next bytes of the other device into piece(); -1 if it cannot be read.
    qint64 readPiece() { return m_compressed.read(m_piece.data(), pieceBytes); }
    char *piece() { return m_piece.data(); }
    QString deviceError() const { return m_compressed.errorString(); }

    qint64 failed(Part reason)
    {
        m_error = std::move(reason);
        return -1;
    }

private:
    QIODevice &m_compressed;
    QByteArray m_piece;
    Part m_error = std::string();
};

/// gzip through zlib, which checks the sums that the other library passes over.
class GzipInput : public Decompressor
{
public:
    explicit GzipInput(QIODevice &compressed)
        : Decompressor(compressed)
    {
        m_isBroken = inflateInit2(&m_stream, MAX_WBITS + gzipHeader) != Z_OK;
    }
    ~GzipInput() override { inflateEnd(&m_stream); }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        m_stream.next_out = reinterpret_cast<Bytef *>(data);
        m_stream.avail_out = static_cast<uInt>(qMin<qint64>(maxSize, pieceBytes));
        const uInt wanted = m_stream.avail_out;
        while (m_stream.avail_out == wanted && !m_isBroken) {
            if (m_stream.avail_in == 0 && !refill())
                return m_isAtMemberEnd
                           ? 0
                           : failed(Sentence(translatable("formats", "its end is missing")));
            if (m_isAtMemberEnd && !beginMember())
                return 0;
            inflateOn();
        }
        return m_isBroken ? failed(wordsOf(m_stream.msg)) : wanted - m_stream.avail_out;
    }

private:
    static constexpr int gzipHeader = 16;
    static constexpr Bytef firstByte = 0x1f;

    bool refill()
    {
        const qint64 count = readPiece();
        m_stream.next_in = reinterpret_cast<Bytef *>(piece());
        m_stream.avail_in = static_cast<uInt>(qMax<qint64>(count, 0));
        return count > 0;
    }

    /// Files may be joined; what else follows the end is padding.
    bool beginMember()
    {
        m_isAtMemberEnd = *m_stream.next_in != firstByte;
        return !m_isAtMemberEnd && inflateReset(&m_stream) == Z_OK;
    }

    void inflateOn()
    {
        const int code = inflate(&m_stream, Z_NO_FLUSH);
        m_isAtMemberEnd = code == Z_STREAM_END;
        m_isBroken = code != Z_OK && code != Z_STREAM_END;
    }

    z_stream m_stream = {};
    bool m_isAtMemberEnd = false;
    bool m_isBroken = false;
};

/// xz, zstd and bzip2.
class ArchiveInput : public Decompressor
{
public:
    explicit ArchiveInput(QIODevice &compressed)
        : Decompressor(compressed)
        , m_reader(archive_read_new(), &archive_read_free)
    {
        // Not all filters: some of them start other programs.
        archive_read_support_filter_xz(m_reader.get());
        archive_read_support_filter_zstd(m_reader.get());
        archive_read_support_filter_bzip2(m_reader.get());
        archive_read_support_format_raw(m_reader.get());
        archive_read_support_format_empty(m_reader.get());
    }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        if (m_state == ARCHIVE_RETRY)
            m_state = start();
        if (m_state == ARCHIVE_EOF)
            return 0;
        const la_ssize_t count =
            m_state == ARCHIVE_OK
                ? archive_read_data(m_reader.get(), data, static_cast<std::size_t>(maxSize))
                : -1;
        return count < 0 ? failed(reason()) : count;
    }

private:
    int start()
    {
        const int opened = archive_read_open(m_reader.get(), this, nullptr, readNext, nullptr);
        if (opened != ARCHIVE_OK)
            return opened;
        archive_entry *entry = nullptr;
        const int code = archive_read_next_header(m_reader.get(), &entry);
        // Too short to be known for what it is, it would pass as plain text.
        m_isBeginningBroken = archive_filter_code(m_reader.get(), 0) == ARCHIVE_FILTER_NONE;
        return m_isBeginningBroken ? ARCHIVE_FATAL : code;
    }

    Part reason() const
    {
        if (m_isBeginningBroken)
            return Sentence(translatable("formats", "its beginning is broken"));
        return wordsOf(archive_error_string(m_reader.get()));
    }

    static ssize_t readNext(archive *reader, void *self, const void **piece)
    {
        auto *const input = static_cast<ArchiveInput *>(self);
        const qint64 count = input->readPiece();
        *piece = input->piece();
        if (count < 0)
            archive_set_error(reader, EIO, "%s", qPrintable(input->deviceError()));
        return count;
    }

    std::unique_ptr<archive, int (*)(archive *)> m_reader;
    int m_state = ARCHIVE_RETRY; ///< until start() has been called
    bool m_isBeginningBroken = false;
};

} // namespace

std::unique_ptr<QIODevice> decompressed(QIODevice &device)
{
    const QByteArray beginning = device.peek(4);
    if (beginning.startsWith("\x1f\x8b"))
        return std::make_unique<GzipInput>(device);
    for (const char *const known : {"\xfd"
                                    "7zX",
                                    "\x28\xb5\x2f\xfd", "BZh"}) {
        if (beginning.startsWith(known))
            return std::make_unique<ArchiveInput>(device);
    }
    return nullptr;
}

Part readError(const QIODevice &device)
{
    const auto *const decompressor = dynamic_cast<const Decompressor *>(&device);
    return decompressor ? decompressor->error() : device.errorString().toStdString();
}

} // namespace formats
