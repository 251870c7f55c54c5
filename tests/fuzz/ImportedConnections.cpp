// SPDX-License-Identifier: MIT
#include "ImportedConnections.h"

#include "Fuzz.h"
#include "formats/CsvFormat.h"
#include "formats/CsvReader.h"
#include "formats/LineReader.h"
#include "history/ConnectionFields.h"
#include "tests/formats/Documents.h"

#include <QBuffer>
#include <QTemporaryDir>

#include <algorithm>

using history::Connection;
using history::Store;

namespace
{

void sortByValue(std::vector<Connection> &connections)
{
    std::sort(connections.begin(), connections.end(), history::comesBeforeByContents);
}

bool areSame(const std::vector<Connection> &a, const std::vector<Connection> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), history::hasSameContents);
}

std::vector<Connection> throughCsv(const std::vector<Connection> &connections)
{
    QByteArray text = formats::toCsv(connections);
    QBuffer device(&text);
    device.open(QIODevice::ReadOnly);
    formats::LineReader lines(device);
    try {
        return formats::connectionsFromCsv(lines);
    } catch (const formats::CsvError &error) {
        fuzz::require(false, inEnglish(error.reason).c_str());
        return {};
    }
}

/// A store that is emptied after each use: making one costs more than using it.
Store &emptyStore()
{
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/fuzz-XXXXXX"));
    static auto store =
        Store::openOrCreate(folder.filePath(QStringLiteral("connections.db")).toStdString());
    fuzz::require(static_cast<bool>(store), "there is a store");
    return store.value();
}

std::vector<Connection> throughStore(const std::vector<Connection> &connections)
{
    Store &store = emptyStore();
    const auto added = store.addMissing(connections);
    fuzz::require(static_cast<bool>(added), "the store takes what the importer accepts");
    const auto listed = store.list();
    fuzz::require(static_cast<bool>(listed), "the store lists what it has");
    std::vector<std::int64_t> keys;
    for (const Connection &each : listed.value())
        keys.push_back(each.key);
    fuzz::require(static_cast<bool>(store.remove(keys)), "the store removes what it has");
    return listed.value();
}

} // namespace

void fuzz::requireLossless(const std::vector<Connection> &connections)
{
    if (connections.empty())
        return;
    require(areSame(throughCsv(connections), connections), "CSV keeps every value");
    std::vector<Connection> stored = throughStore(connections);
    std::vector<Connection> given = connections;
    sortByValue(stored);
    sortByValue(given);
    require(areSame(stored, given), "the store keeps every value");
}
