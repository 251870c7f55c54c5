// SPDX-License-Identifier: MIT
#pragma once

#include "history/Connection.h"

#include <memory>
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
    virtual void end(std::string &text) = 0;
};

/// A table of the connections without their keys: a header, then each line ended by a
/// line feed.
std::unique_ptr<ConnectionWriter> csvWriter();
/// An array for programs, with the hours that are given: exact integers, times as
/// ISO 8601 in UTC.
std::unique_ptr<ConnectionWriter> jsonWriter();

/// The whole document of these connections.
std::string documentOf(ConnectionWriter &writer,
                       const std::vector<history::Connection> &connections);

} // namespace formats
