// SPDX-License-Identifier: MIT
#pragma once

#include "formats/Formats.h"

#include <CLI/CLI.hpp>

#include <string>

namespace connrecord
{

/// The names of the rows of a table, and what they are, for the option that takes one.
template <typename Table>
std::string choiceOf(const Table &table)
{
    std::string names;
    for (const auto &row : table)
        names += (names.empty() ? "" : "|") + std::string(row.name);
    return names;
}

template <typename Table>
std::string helpOf(const Table &table)
{
    std::string text;
    for (const auto &row : table)
        text += (text.empty() ? "" : "; ") + std::string(row.name) + ": " + row.help;
    return text;
}

/// The row that the option names.
template <typename Table>
auto chosenFrom(const Table &table, const std::string &option, const std::string &name)
{
    const auto *const row = formats::formatNamed(table, name);
    if (!row)
        throw CLI::ValidationError(option, "it is one of " + choiceOf(table) + ", not " + name);
    return row;
}

} // namespace connrecord
