// SPDX-License-Identifier: MIT
#pragma once

#include "TextScanner.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace usage
{

/// Bytes. Each larger unit is as many of the one below.
inline constexpr std::int64_t kilobyte = 1024;

enum class Rounding { Nearest, Down };

/// A number of bytes as the history shows it: "0.10 KB", "1.50 MB", up to GB, of 1024
/// each and in every language with a full stop. What is less than none has a minus.
QString sizeText(std::int64_t bytes, Rounding rounding = Rounding::Nearest);
/// The same behind the text, for who writes many.
void appendSize(std::string &text, std::int64_t bytes);

/// The same in at most three digits, without zeros behind the full stop: "3.2 GB", "560 MB".
QString shortSizeText(std::int64_t bytes, Rounding rounding = Rounding::Nearest);

struct PartText {
    QString part;
    QString whole;
};
/// Both in so few digits, unless the part would read as the whole before it has reached it.
PartText shortPartText(std::int64_t part, std::int64_t whole);

/// "249 B/s"; from 1024 bytes on in the units above: "1.50 KB/s".
QString rateText(std::int64_t bytesPerSecond);

/// The names of the units that sizes are written in, from the smallest on.
QStringList writtenUnits();

/// A number and the name of its unit.
struct WrittenSize {
    QString number;
    QString unit;
};
/// So that bytesIn() reads exactly these bytes again, in the largest unit of which two decimals
/// are enough for that.
WrittenSize writtenSize(std::int64_t bytes);

/// The bytes that somebody has written as "10GB", "1.5 GB" or "500": in B, KB, MB, GB or TB,
/// of 1024 each, a part of a byte cut, "-" in front allowed. Nothing if it is none of these.
std::optional<WholeNumber> bytesIn(std::string_view text);

} // namespace usage
