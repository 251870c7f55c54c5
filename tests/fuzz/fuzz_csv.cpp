// SPDX-License-Identifier: MIT
// Tables of arbitrary bytes through the importer of CSV files.
#include "Fuzz.h"
#include "ImportedConnections.h"
#include "formats/CsvFormat.h"
#include "formats/CsvReader.h"
#include "formats/LineReader.h"

#include <QBuffer>

using namespace formats;

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QByteArray contents(reinterpret_cast<const char *>(data), static_cast<int>(size));
    QBuffer device(&contents);
    device.open(QIODevice::ReadOnly);
    LineReader lines(device, longestCsvLine + 1);
    try {
        fuzz::requireLossless(connectionsFromCsv(lines, [](std::int64_t) {}));
    } catch (const CsvError &error) {
        fuzz::require(error.line > 0 && !error.reason.empty(), "the error tells where and why");
    }
    return 0;
}
