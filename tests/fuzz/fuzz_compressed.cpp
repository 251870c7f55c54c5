// SPDX-License-Identifier: MIT
// Compressed logs. An input whose first byte is even is a compressed file of arbitrary
// bytes; of another one, what follows three bytes is compressed with gzip, and then those
// change one byte of it.
#include "ByteReader.h"
#include "Fuzz.h"
#include "formats/CompressedInput.h"
#include "formats/Formats.h"
#include "formats/InputError.h"

#include <QBuffer>

#include <zlib.h>

#include <optional>

namespace
{

/// More than the device gives at once.
constexpr int mostBytes = 1 << 20;

QByteArray compressed(const std::string &text)
{
    z_stream stream = {};
    constexpr int gzipFormat = 16;
    fuzz::require(deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, MAX_WBITS + gzipFormat,
                               8, Z_DEFAULT_STRATEGY) == Z_OK,
                  "zlib begins");
    QByteArray file(static_cast<int>(deflateBound(&stream, text.size())), '\0');
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(text.data()));
    stream.avail_in = static_cast<uInt>(text.size());
    stream.next_out = reinterpret_cast<Bytef *>(file.data());
    stream.avail_out = static_cast<uInt>(file.size());
    fuzz::require(deflate(&stream, Z_FINISH) == Z_STREAM_END, "zlib compresses");
    file.resize(static_cast<int>(stream.total_out));
    deflateEnd(&stream);
    return file;
}

/// What the file holds; nothing if it cannot be read or is not compressed.
std::optional<QByteArray> contentsOf(QByteArray file)
{
    QBuffer device(&file);
    device.open(QIODevice::ReadOnly);
    const auto reader = formats::decompressed(device);
    if (!reader)
        return std::nullopt;
    QByteArray contents;
    QByteArray piece(4096, '\0');
    for (qint64 count = 1; count > 0 && contents.size() < mostBytes;) {
        count = reader->read(piece.data(), piece.size());
        if (count < 0)
            return std::nullopt;
        contents.append(piece.constData(), static_cast<int>(count));
    }
    return contents;
}

void importLog(QByteArray file)
{
    QBuffer device(&file);
    device.open(QIODevice::ReadOnly);
    const auto input = formats::decompressed(device);
    if (!input)
        return;
    constexpr const auto &format = *formats::formatNamed(formats::importFormats, "pppd");
    try {
        format.reader({})->read({*input, history::translatable("formats", "input"), 1700000000},
                                [](std::int64_t) {});
    } catch (const formats::InputError &) {
        return;
    }
}

} // namespace

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    qputenv("TZ", "Europe/Berlin");
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::ByteReader bytes(data, size);
    if (bytes.below(2) == 0) {
        const std::string rest = bytes.rest();
        const QByteArray file(rest.data(), static_cast<int>(rest.size()));
        // A few bytes can hold more than fits into memory; the importers read by pieces.
        const auto contents = contentsOf(file);
        if (contents && contents->size() < mostBytes)
            importLog(file);
        return 0;
    }
    const auto place = static_cast<int>(bytes.number(2));
    const std::uint8_t change = bytes.byte();
    const std::string text = bytes.rest();
    QByteArray file = compressed(text);
    const QByteArray expected(text.data(), static_cast<int>(text.size()));
    fuzz::require(contentsOf(file) == expected, "what was compressed comes back");
    file[place % file.size()] = static_cast<char>(file.at(place % file.size()) ^ change);
    const auto contents = contentsOf(file);
    fuzz::require(!contents || *contents == expected, "a damage is noticed");
    return 0;
}
