// SPDX-License-Identifier: MIT
#pragma once

#include "ImportReader.h"
#include "JsonFormat.h"

#include <array>
#include <memory>
#include <string_view>
#include <vector>

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

constexpr std::array<ImportFormat, 3> importFormats = {{
    {"csv", "a file such as export writes", false, csvImport},
    {"json", "a file such as export writes with the same format", false, jsonImport},
    {"pppd", "a system log with messages of pppd", true, pppdImport},
}};

/// A kind of file that can be exported.
struct ExportFormat {
    const char *name;
    const char *help;
    bool breaksLines;  ///< a text with line breaks is on several lines
    bool carriesHours; ///< of the connections, which have to be given then
    QByteArray (*text)(const std::vector<history::Connection> &connections);
};

constexpr std::array<ExportFormat, 2> exportFormats = {{
    {"csv", "a table, without the bytes by the hour", true, false, toCsv},
    {"json", "for programs, with the bytes by the hour", false, true, toJsonText},
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
