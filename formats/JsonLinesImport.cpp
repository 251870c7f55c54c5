// SPDX-License-Identifier: MIT
#include "FieldValue.h"
#include "InputError.h"
#include "JsonFormat.h"
#include "JsonLine.h"
#include "LineReader.h"
#include "SpooledImport.h"
#include "Utf8Text.h"

#include <string_view>

namespace formats
{

namespace
{

using history::translatable;

/// No connection with its hours is longer, in bytes.
constexpr std::size_t longestJsonLine = 16777216;

class JsonLinesImport : public SpooledImport
{
public:
    void read(const ImportSource &source, const ReadProgress &progress) override;

private:
    void take(std::string_view line, std::int64_t number);
};

void JsonLinesImport::read(const ImportSource &source, const ReadProgress &progress)
{
    LineReader lines(source.device, longestJsonLine + 1, progress);
    const auto fail = [&](const history::Part &reason) {
        throw InputError({translatable("formats", "%1, line %2: %3. Nothing was imported."),
                          {source.name, std::to_string(lines.lineNumber()), reason}});
    };
    try {
        while (lines.next())
            take(lines.line(), lines.lineNumber());
    } catch (const Json::exception &error) {
        fail(reasonOf(error));
    } catch (const FieldError &error) {
        fail(error.reason);
    }
    lines.checkReadToTheEnd(source.name);
}

/// Blank lines are nothing, and neither is the last one of a delivery.
void JsonLinesImport::take(std::string_view line, std::int64_t number)
{
    if (line.size() > longestJsonLine)
        throw longerThan(longestJsonLine);
    const std::string_view text = number == 1 ? withoutByteOrderMark(line) : line;
    if (text.find_first_not_of(" \t\r") == std::string_view::npos)
        return;
    const Json json = Json::parse(text);
    if (isStillRunning(json))
        addRunning(number, text);
    else if (!json.is_object() || !json.contains(jsonLastKeyName))
        add(connectionFromJson(json));
}

} // namespace

std::unique_ptr<ImportReader> jsonLinesImport(const ImportOptions & /*options*/)
{
    return std::make_unique<JsonLinesImport>();
}

} // namespace formats
