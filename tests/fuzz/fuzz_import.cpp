// SPDX-License-Identifier: MIT
// Files of arbitrary bytes through the importer of one format, that of FUZZED_FORMAT.
#include "Fuzz.h"
#include "ImportedConnections.h"
#include "formats/Formats.h"
#include "formats/InputError.h"
#include "tests/formats/Documents.h"

#include <QBuffer>

using namespace formats;

namespace
{

constexpr const ImportFormat &format = *formatNamed(importFormats, FUZZED_FORMAT);

} // namespace

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    qputenv("TZ", "Europe/Berlin");
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QByteArray contents(reinterpret_cast<const char *>(data), static_cast<int>(size));
    QBuffer device(&contents);
    device.open(QIODevice::ReadOnly);
    constexpr std::int64_t now = 1700000000;
    const auto reader = format.reader({});
    try {
        reader->read({device, history::translatable("formats", "input"), now}, [](std::int64_t) {});
        fuzz::requireLossless(formats::connectionsOf(reader->imported()));
    } catch (const InputError &error) {
        fuzz::require(std::string_view(error.what()).substr(0, 5) == "input",
                      "the error begins with the name of the file");
    }
    return 0;
}
