// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <iterator>

/// How the texts of an SDK record are read.
namespace SdkText
{

/// A field's text up to its terminator, or the whole field if it has none.
template <std::size_t Size>
QString bounded(const char (&field)[Size])
{
    const char *end = std::find(std::begin(field), std::end(field), '\0');
    return QString::fromLatin1(field, static_cast<int>(end - field));
}

template <std::size_t Size>
QString bounded(const char16_t (&field)[Size])
{
    const char16_t *end = std::find(std::begin(field), std::end(field), u'\0');
    return QString::fromUtf16(field, static_cast<int>(end - field));
}

/// Seconds since 1970-01-01 UTC as local time. The count is taken as unsigned,
/// so a negative text wraps; that is meant.
template <std::size_t Size>
QDateTime localTime(const char (&field)[Size])
{
    return QDateTime::fromSecsSinceEpoch(static_cast<quint32>(bounded(field).toInt()));
}

} // namespace SdkText
