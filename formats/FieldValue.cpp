// SPDX-License-Identifier: MIT
#include "FieldValue.h"

#include "Utf8Text.h"
#include "history/Store.h"
#include "usage/CalendarTime.h"
#include "usage/TextScanner.h"

namespace formats
{

namespace
{

std::string quotedText(const std::string &text)
{
    return '"' + printable(text) + '"';
}

} // namespace

std::int64_t fieldNumber(const std::string &text, std::int64_t largest)
{
    const auto number = usage::wholeNumber(text);
    if (!number)
        throw FieldError{quotedText(text) + " is not a whole number", true};
    if (text.front() == '-')
        throw FieldError{quotedText(text) + " is negative", false};
    if (!number->isInRange || number->value > largest)
        throw FieldError{quotedText(text) + " is more than " + std::to_string(largest), false};
    return number->value;
}

std::int64_t fieldTime(const std::string &text)
{
    const auto utc = usage::utcFromIso(text);
    if (!utc)
        throw FieldError{quotedText(text) + " is not a time such as 2024-05-31T18:30:00Z", true};
    if (*utc < 0 || *utc > history::largestTime)
        throw FieldError{quotedText(text) + " is not between " + usage::utcText(0).toStdString() +
                             " and " + usage::utcText(history::largestTime).toStdString(),
                         false};
    return *utc;
}

std::int64_t fieldEnd(const std::string &text, std::int64_t startUtc)
{
    const std::int64_t utc = fieldTime(text);
    if (utc < startUtc)
        throw FieldError{quotedText(text) + " is before the start, " +
                             usage::utcText(startUtc).toStdString(),
                         false};
    return utc;
}

QDate fieldDay(const std::string &text)
{
    const QString day = fromUtf8(text);
    const QDate date = QDate::fromString(day, Qt::ISODate);
    // Other separators and what follows a date are read as well.
    if (date.toString(Qt::ISODate) != day || date.isNull())
        throw FieldError{quotedText(text) + " is not a day such as 2024-05-31", true};
    return date;
}

std::string parsedValue(history::kind::Text /*kind*/, const std::string &text, std::int64_t maximum,
                        const history::Connection & /*connection*/)
{
    if (text.size() > static_cast<std::size_t>(maximum))
        throw FieldError{"the text has " + std::to_string(text.size()) + " bytes, at most " +
                             std::to_string(maximum) + " are allowed",
                         false};
    return text;
}

std::string parsedValue(history::kind::Roaming /*kind*/, const std::string &text,
                        std::int64_t /*maximum*/, const history::Connection & /*connection*/)
{
    if (!history::isRoamingText(text))
        throw FieldError{'"' + printable(text) + "\" is neither \"" + history::atHome +
                             "\" nor \"" + history::abroad + "\" nor empty",
                         true};
    return text;
}

std::int64_t parsedValue(history::kind::StartTime /*kind*/, const std::string &text,
                         std::int64_t /*maximum*/, const history::Connection & /*connection*/)
{
    return fieldTime(text);
}

std::int64_t parsedValue(history::kind::EndTime /*kind*/, const std::string &text,
                         std::int64_t /*maximum*/, const history::Connection &connection)
{
    return fieldEnd(text, connection.startUtc);
}

std::int64_t parsedValue(history::kind::Amount /*kind*/, const std::string &text,
                         std::int64_t maximum, const history::Connection & /*connection*/)
{
    return fieldNumber(text, maximum);
}

} // namespace formats
