// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace refhost
{

bool isUtf8(std::string_view text);

/// The text as a QString, a byte order mark at its start included.
QString fromUtf8(std::string_view text);

/// The text as the store takes it: what is not UTF-8, and every NUL, becomes
/// U+FFFD.
std::string cleanedUtf8(std::string_view text);

/// The text as one line that a terminal shows and does not obey: control and
/// invisible format characters are written as \n, \t, \u001b; what is behind
/// `most` characters is left out, with "…" in its place.
QString printable(const QString &text, int most = 200);
std::string printable(std::string_view text, int most = 200);

} // namespace refhost
