// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace history
{

/// Throw StoreFailure, of the kind BadRecord, if a value is outside its range. `whose` and
/// `what` name it in the sentence.
void checkNumber(const std::string &whose, const char *what, std::int64_t value,
                 std::int64_t minimum, std::int64_t maximum);
/// The text has no NUL character and from `minimum` to `maximum` bytes.
void checkText(const std::string &whose, const char *what, const std::string &text,
               std::size_t minimum, std::size_t maximum);

/// As much of a text as a sentence can take; it stays UTF-8 if it is.
std::string beginningOf(const std::string &text);

} // namespace history
