// SPDX-License-Identifier: MIT
#pragma once

#include "Failure.h"
#include "formats/FieldValue.h"
#include "formats/Utf8Text.h"

#include <cstdint>
#include <string>

namespace connrecord
{

/// The end for a value of an option; `reason` is a clause.
inline Failure optionFailure(ExitCode code, const std::string &option, const std::string &reason)
{
    return Failure(code, "For " + option + ", " + reason + ".");
}

/// The value of an option, read by `read`, one of the functions of FieldValue.h;
/// what that one throws becomes a Failure that names the option.
template <typename Read>
auto optionValue(const std::string &option, const std::string &text, Read read)
{
    try {
        return read(text);
    } catch (const formats::FieldError &error) {
        throw optionFailure(error.isMalformed ? ExitCode::Usage : ExitCode::Refused, option,
                            inEnglish(error.reason));
    }
}

inline std::int64_t optionNumber(const std::string &option, const std::string &text,
                                 std::int64_t largest)
{
    return optionValue(option, text, [largest](const std::string &value) {
        return formats::fieldNumber(value, largest);
    });
}

/// The text that the option gives, which has to be UTF-8.
inline const std::string &optionText(const std::string &option, const std::string &text)
{
    if (!formats::isUtf8(text))
        throw optionFailure(ExitCode::Refused, option, "the text is not UTF-8");
    return text;
}

} // namespace connrecord
