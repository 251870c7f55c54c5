// SPDX-License-Identifier: MIT
#include "Import.h"

namespace common
{

formats::Imported readFiles(const ImportRequest &request, ImportProgress &progress)
{
    const auto reader = request.format->reader(request.options);
    for (const std::string &path : request.paths) {
        formats::InputFile file(path);
        progress.beginReading(path, file);
        reader->read({file.device(), file.name(), file.modifiedUtc()},
                     [&progress](std::int64_t bytes) { progress.update(bytes); });
    }
    return reader->imported();
}

history::Result<history::Store::Merged> storeImported(const std::string &storePath,
                                                      const formats::Imported &imported,
                                                      ImportProgress &progress)
{
    progress.beginStoring(static_cast<std::int64_t>(imported.size()));
    auto store = history::Store::openOrCreate(storePath);
    if (!store)
        return store.error();
    return formats::addImported(store.value(), imported, [&progress](std::size_t done) {
        progress.update(static_cast<std::int64_t>(done));
    });
}

} // namespace common
