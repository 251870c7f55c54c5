// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <limits>
#include <string>
#include <string_view>

namespace formats
{

bool isUtf8(std::string_view text);

/// Whether nothing but the characters from the space to the tilde is in it.
bool isPlainAscii(std::string_view text);

/// The text as a QString, a byte order mark at its start included.
QString fromUtf8(std::string_view text);

/// The text as the store takes it: what is not UTF-8, and every NUL, becomes
/// U+FFFD.
std::string cleanedUtf8(std::string_view text);

std::string_view withoutByteOrderMark(std::string_view text);

constexpr int unlimited = std::numeric_limits<int>::max();

/// The text as one line that a terminal shows and does not obey: characters that
/// control it, that are invisible or that Unicode gives no meaning are written as
/// in JSON, such as `\n`, `\u001b` or `\udb40\udc01`; what is behind `most` characters is
/// left out, with "…" in its place.
QString printable(const QString &text, int most = 200);
std::string printable(std::string_view text, int most = 200);

/// All lines of a text in UTF-8, each of them printable. JSON stays the same document.
QByteArray printableLines(std::string_view text);

} // namespace formats
