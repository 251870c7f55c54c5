// SPDX-License-Identifier: MIT
#pragma once

#include "ImportReader.h"

#include <array>
#include <memory>
#include <string_view>

namespace formats
{

/// A kind of file that can be imported: one row of the table from which the command
/// line and the fuzz targets take it, and with which a test compares the manual.
struct ImportFormat {
    const char *name;
    const char *help; ///< one line, to be read after the name
    bool takesSeveralFiles;
    std::unique_ptr<ImportReader> (*reader)(const ImportOptions &options);
};

constexpr std::array<ImportFormat, 2> importFormats = {{
    {"csv", "a file such as export writes", false, csvImport},
    {"pppd", "a system log with messages of pppd", true, pppdImport},
}};

/// The table's row of that name; null if there is none.
template <typename Table>
constexpr auto formatNamed(const Table &table, std::string_view name) -> decltype(table.data())
{
    for (const auto &format : table) {
        if (format.name == name)
            return &format;
    }
    return nullptr;
}

} // namespace formats
