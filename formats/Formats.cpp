// SPDX-License-Identifier: MIT
#include "Formats.h"

#include "InputFile.h"

#include <algorithm>

namespace formats
{

const ImportFormat &recognisedFormat(const std::string &path)
{
    constexpr qint64 beginningBytes = 1024;
    InputFile file(path);
    const std::string beginning = file.device().read(beginningBytes).toStdString();
    return *std::find_if(
        importFormats.begin(), importFormats.end(),
        [&beginning](const ImportFormat &format) { return format.isBeginning(beginning); });
}

} // namespace formats
