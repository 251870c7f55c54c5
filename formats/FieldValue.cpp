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

using history::translatable;

std::string utcText(std::int64_t utc)
{
    return usage::utcText(utc).toStdString();
}

} // namespace

std::int64_t fieldNumber(const std::string &text, std::int64_t largest)
{
    const auto number = usage::wholeNumber(text);
    if (!number)
        throw FieldError{
            {translatable("formats", "\"%1\" is not a whole number"), {printable(text)}}, true};
    if (text.front() == '-')
        throw FieldError{{translatable("formats", "\"%1\" is negative"), {printable(text)}}, false};
    if (!number->isInRange || number->value > largest)
        throw FieldError{{translatable("formats", "\"%1\" is more than %2"),
                          {printable(text), std::to_string(largest)}},
                         false};
    return number->value;
}

std::int64_t fieldTime(const std::string &text)
{
    const auto utc = usage::utcFromIso(text);
    if (!utc)
        throw FieldError{
            {translatable("formats", "\"%1\" is not a time such as 2024-05-31T18:30:00Z"),
             {printable(text)}},
            true};
    if (*utc < 0 || *utc > history::largestTime)
        throw FieldError{{translatable("formats", "\"%1\" is not between %2 and %3"),
                          {printable(text), utcText(0), utcText(history::largestTime)}},
                         false};
    return *utc;
}

std::int64_t fieldEnd(const std::string &text, std::int64_t startUtc)
{
    const std::int64_t utc = fieldTime(text);
    if (utc < startUtc)
        throw FieldError{{translatable("formats", "\"%1\" is before the start, %2"),
                          {printable(text), utcText(startUtc)}},
                         false};
    return utc;
}

QDate fieldDay(const std::string &text)
{
    const QString day = fromUtf8(text);
    const QDate date = QDate::fromString(day, Qt::ISODate);
    // Other separators and what follows a date are read as well.
    if (date.toString(Qt::ISODate) != day || date.isNull())
        throw FieldError{
            {translatable("formats", "\"%1\" is not a day such as 2024-05-31"), {printable(text)}},
            true};
    return date;
}

std::string parsedValue(history::kind::Text /*kind*/, const std::string &text, std::int64_t maximum,
                        const history::Connection & /*connection*/)
{
    if (text.size() > static_cast<std::size_t>(maximum))
        throw FieldError{{translatable("formats", "the text has %1 bytes, at most %2 are allowed"),
                          {std::to_string(text.size()), std::to_string(maximum)}},
                         false};
    return text;
}

std::string parsedValue(history::kind::Roaming /*kind*/, const std::string &text,
                        std::int64_t /*maximum*/, const history::Connection & /*connection*/)
{
    if (!history::isRoamingText(text))
        throw FieldError{
            {translatable("formats", "\"%1\" is neither \"%2\" nor \"%3\" nor empty"),
             {printable(text), std::string(history::atHome), std::string(history::abroad)}},
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
