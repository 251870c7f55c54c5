// SPDX-License-Identifier: MIT
#pragma once

#include "history/Connection.h"
#include "history/StoreReports.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace formats
{

/// Writes connections one after the other as one document in UTF-8, however many they
/// are: each call puts what is next of it behind `text`, which may have been emptied
/// since the last one. A writer is for one document.
class ConnectionWriter
{
public:
    virtual ~ConnectionWriter() = default;

    virtual void begin(std::string &text) = 0;
    virtual void add(const history::Connection &connection, std::string &text) = 0;
    /// One that still lasts, which has no end and is marked by that at least; left out where
    /// there is no way to mark it.
    virtual void addRunning(const history::OpenConnection & /*connection*/, std::string & /*text*/)
    {
    }
    virtual void end(std::string &text) = 0;
};

/// What an export of only what has come since another one tells of itself.
struct Delivery {
    std::int64_t afterKey = 0;
    std::string time; ///< of the export
    history::GivenKeys keys;
};

/// What formats for the histories of many machines have to know; the others need nothing.
struct ExportOptions {
    std::string machine; ///< the name that this one goes by
    std::optional<Delivery> delivery;
};

/// A table of the connections without their keys: a header, then each line ended by a
/// line feed.
std::unique_ptr<ConnectionWriter> csvWriter(const ExportOptions &options = {});
/// An array for programs, with the hours that are given: exact integers, times as
/// ISO 8601 in UTC.
std::unique_ptr<ConnectionWriter> jsonWriter(const ExportOptions &options = {});
/// The same as an object on each line, with the machine; behind them one on the delivery.
std::unique_ptr<ConnectionWriter> jsonLinesWriter(const ExportOptions &options);

/// The whole document of these connections.
std::string documentOf(ConnectionWriter &writer,
                       const std::vector<history::Connection> &connections);

} // namespace formats
