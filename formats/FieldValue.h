// SPDX-License-Identifier: MIT
#pragma once

#include "history/ConnectionFields.h"
#include "history/Sentence.h"

#include <QDate>

#include <cstdint>
#include <string>

namespace formats
{

/// Why a text is not the value that its place asks for. Thrown by the functions
/// below.
struct FieldError {
    history::Sentence reason; ///< a clause, mostly one that quotes the text
    bool isMalformed;         ///< not such a value at all, rather than out of range
};

/// A whole number from 0 to `largest`, in decimal digits.
std::int64_t fieldNumber(const std::string &text, std::int64_t largest);

/// An ISO 8601 time that the store can keep; local time unless it has a zone.
std::int64_t fieldTime(const std::string &text);

/// Such a time, which is not before that of the start.
std::int64_t fieldEnd(const std::string &text, std::int64_t startUtc);

/// A day of the calendar as yyyy-MM-dd.
QDate fieldDay(const std::string &text);

/// The value of a connection's field of that kind, of at most `maximum`. Of `connection`, the
/// fields before it have been read.
std::string parsedValue(history::kind::Text /*kind*/, const std::string &text, std::int64_t maximum,
                        const history::Connection & /*connection*/);
std::string parsedValue(history::kind::Roaming /*kind*/, const std::string &text,
                        std::int64_t /*maximum*/, const history::Connection & /*connection*/);
std::int64_t parsedValue(history::kind::StartTime /*kind*/, const std::string &text,
                         std::int64_t /*maximum*/, const history::Connection & /*connection*/);
std::int64_t parsedValue(history::kind::EndTime /*kind*/, const std::string &text,
                         std::int64_t /*maximum*/, const history::Connection &connection);
std::int64_t parsedValue(history::kind::Amount /*kind*/, const std::string &text,
                         std::int64_t maximum, const history::Connection & /*connection*/);

} // namespace formats
