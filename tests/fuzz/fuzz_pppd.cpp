// SPDX-License-Identifier: MIT
// System logs of arbitrary bytes through the importer of pppd's messages.
#include "Fuzz.h"
#include "ImportedConnections.h"
#include "formats/JoinedLog.h"
#include "formats/LineReader.h"
#include "formats/PppdConnections.h"

#include <QBuffer>

using namespace formats;

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
    LineReader lines(device, longestLogLine);
    constexpr std::int64_t now = 1700000000;
    const JoinedLog log = joinLogs({{readPppdLog(lines, [](std::int64_t) {}), now}}, {});
    PppdConnections importer({});
    importer.takeAll(log.events);
    fuzz::requireLossless(importer.connections());
    return 0;
}
