// SPDX-License-Identifier: MIT
#pragma once

#include "ConnectionWriter.h"
#include "CsvFormat.h"
#include "ImportReader.h"
#include "JsonFormat.h"

#include <QtGlobal>

#include <array>
#include <memory>
#include <string>
#include <string_view>

namespace formats
{

/// A kind of file that can be imported: one row of the table from which the command
/// line, the window and the fuzz targets take it, and with which a test compares the
/// manual.
struct ImportFormat {
    const char *name;
    const char *help;   ///< one line, to be read after the name
    const char *title;  ///< for a window, which translates it in the context "formats"
    const char *suffix; ///< that names of such files mostly have; empty for any
    bool takesSeveralFiles;
    bool (*isBeginning)(std::string_view beginning); ///< whether a file of it may begin so
    std::unique_ptr<ImportReader> (*reader)(const ImportOptions &options);
};

/// The last one takes what is none of the others.
constexpr std::array<ImportFormat, 4> importFormats = {{
    {"csv", "a file such as export writes", QT_TRANSLATE_NOOP("formats", "CSV table"), "csv", false,
     isBeginningOfCsv, csvImport},
    {"json", "a file such as export writes with the same format",
     QT_TRANSLATE_NOOP("formats", "JSON"), "json", false, isBeginningOfJson, jsonImport},
    {"jsonl", "a file such as export writes with the same format",
     QT_TRANSLATE_NOOP("formats", "JSON, an object a line"), "jsonl", false, isBeginningOfJsonLines,
     jsonLinesImport},
    {"pppd", "a system log with messages of pppd",
     QT_TRANSLATE_NOOP("formats", "System log with messages of pppd"), "", true,
     [](std::string_view /*beginning*/) { return true; }, pppdImport},
}};

/// What the file holds by its beginning, whatever its name. Throws InputError if it
/// cannot be opened.
const ImportFormat &recognisedFormat(const std::string &path);

/// A kind of file that can be exported.
struct ExportFormat {
    const char *name;
    const char *help;
    const char *title;
    const char *suffix;
    bool breaksLines;  ///< a text with line breaks is on several lines
    bool carriesHours; ///< of the connections, which have to be given then
    bool namesMachine; ///< of the many whose histories come together; tells what lasts too
    std::unique_ptr<ConnectionWriter> (*writer)(const ExportOptions &options);
};

constexpr std::array<ExportFormat, 3> exportFormats = {{
    {"csv", "a table, without the bytes by the hour", QT_TRANSLATE_NOOP("formats", "CSV table"),
     "csv", true, false, false, csvWriter},
    {"json", "for programs, with the bytes by the hour",
     QT_TRANSLATE_NOOP("formats", "JSON with the bytes by the hour"), "json", false, true, false,
     jsonWriter},
    {"jsonl", "for the histories of many machines, an object a line",
     QT_TRANSLATE_NOOP("formats", "JSON, an object a line"), "jsonl", false, true, true,
     jsonLinesWriter},
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
