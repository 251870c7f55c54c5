// SPDX-License-Identifier: MIT
#pragma once

#include "Json.h"

#include <QByteArray>

#include <nlohmann/json.hpp>

namespace formats
{

/// The document's text, indented, ended by a line feed; what is not UTF-8 in it
/// becomes U+FFFD.
inline QByteArray jsonText(const Json &json)
{
    constexpr int indent = 4;
    return QByteArray::fromStdString(
               json.dump(indent, ' ', false, Json::error_handler_t::replace)) +
           '\n';
}

} // namespace formats
