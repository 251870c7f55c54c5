// SPDX-License-Identifier: MIT
#include "CsvFormat.h"
#include "CsvReader.h"
#include "InputError.h"
#include "LineReader.h"
#include "SpooledImport.h"

namespace formats
{

namespace
{

class CsvImport : public SpooledImport
{
public:
    void read(const ImportSource &source, const ReadProgress &progress) override;
};

void CsvImport::read(const ImportSource &source, const ReadProgress &progress)
{
    LineReader lines(source.device, longestCsvLine + 1, progress);
    try {
        readCsv(
            lines, [this](const history::Connection &connection) { add(connection); },
            [this](std::int64_t line, const std::string &text) { addRunning(line, text); });
        lines.checkReadToTheEnd(source.name);
    } catch (const CsvError &error) {
        lines.checkReadToTheEnd(source.name);
        throw InputError(
            {history::translatable("formats", "%1, line %2, column %3: %4. Nothing "
                                              "was imported."),
             {source.name, std::to_string(error.line), csvColumnName(error.column), error.reason}});
    }
}

} // namespace

std::unique_ptr<ImportReader> csvImport(const ImportOptions & /*options*/)
{
    return std::make_unique<CsvImport>();
}

} // namespace formats
