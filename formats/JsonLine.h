// SPDX-License-Identifier: MIT
#pragma once

#include "JsonText.h"
#include "Utf8Text.h"

#include <string>

namespace formats
{

/// The document on one line, without its end; what is not UTF-8 in it becomes U+FFFD.
inline std::string lineOf(const Json &json)
{
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

/// What the parser says behind its own number of the error; it quotes the document. A number
/// that no double holds is another error to it than what is no JSON.
inline std::string reasonOf(const Json::exception &error)
{
    const std::string text = error.what();
    const std::size_t end = text.find("] ");
    return printable(end == std::string::npos ? text : text.substr(end + 2), unlimited);
}

} // namespace formats
