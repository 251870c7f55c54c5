// SPDX-License-Identifier: MIT
#pragma once

#include "formats/Formats.h"
#include "formats/InputFile.h"

#include <cstdint>
#include <string>
#include <vector>

namespace common
{

/// What is to be imported, as one.
struct ImportRequest {
    const formats::ImportFormat *format = nullptr;
    std::vector<std::string> paths; ///< "-": standard input; several logs are one
    formats::ImportOptions options;
};

/// Told how far an import is, on the thread that does it. What it throws ends the import;
/// then nothing has been stored.
class ImportProgress
{
public:
    virtual ~ImportProgress() = default;

    /// The next one of the request's paths, as it has been opened.
    virtual void beginReading(const std::string &path, const formats::InputFile &file) = 0;
    virtual void beginStoring(std::int64_t connections) = 0;
    /// How much of what has begun last is done.
    virtual void update(std::int64_t done) = 0;
};

/// What the files hold together. Throws InputError and YearError.
formats::Imported readFiles(const ImportRequest &request, ImportProgress &progress);

/// Stores what the history at `storePath` does not have yet, all or none.
history::Result<history::Store::Merged> storeImported(const std::string &storePath,
                                                      const formats::Imported &imported,
                                                      ImportProgress &progress);

} // namespace common
