// SPDX-License-Identifier: MIT
#pragma once

#include "Imported.h"
#include "LineReader.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

class QIODevice;

namespace formats
{

/// What an import may have to know beside its files.
struct ImportOptions {
    std::string profile;     ///< for connections of a log that shows no APN; may be empty
    std::optional<int> year; ///< of a log's last line, if that one shows none
};

/// Why ImportOptions::year is wrong: a clause that begins with it.
class YearError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A file as it is given to a reader.
struct ImportSource {
    QIODevice &device;
    history::Sentence name; ///< for messages
    std::int64_t changedUtc;
};

/// Reads the files of one import, one after the other.
class ImportReader
{
public:
    virtual ~ImportReader() = default;

    /// Throws InputError, with a sentence that names the source.
    virtual void read(const ImportSource &source, const ReadProgress &progress) = 0;
    /// What they hold; to be called once, after the last. Throws InputError and YearError.
    virtual Imported imported() = 0;
};

/// Of tables as export writes them.
std::unique_ptr<ImportReader> csvImport(const ImportOptions &options);
/// Of connections as JSON.
std::unique_ptr<ImportReader> jsonImport(const ImportOptions &options);
/// Of connections as JSON, an object a line.
std::unique_ptr<ImportReader> jsonLinesImport(const ImportOptions &options);
/// Of system logs, several of which are one in the order of their time.
std::unique_ptr<ImportReader> pppdImport(const ImportOptions &options);

} // namespace formats
