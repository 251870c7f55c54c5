// SPDX-License-Identifier: MIT
#include "CsvFormat.h"
#include "CsvReader.h"
#include "ImportReader.h"
#include "InputError.h"
#include "LineReader.h"

namespace formats
{

namespace
{

class CsvImport : public ImportReader
{
public:
    void read(const ImportSource &source, const ReadProgress &progress) override;
    Imported imported() override { return std::move(m_imported); }

private:
    Imported m_imported;
};

void CsvImport::read(const ImportSource &source, const ReadProgress &progress)
{
    LineReader lines(source.device, longestCsvLine + 1, progress);
    try {
        m_imported.connections =
            connectionsFromCsv(lines, [this](std::int64_t line, const std::string &text) {
                countRunning(m_imported, line, text);
            });
        lines.checkReadToTheEnd(source.name);
    } catch (const CsvError &error) {
        lines.checkReadToTheEnd(source.name);
        throw InputError(source.name + ", line " + std::to_string(error.line) + ", column " +
                         csvColumnName(error.column) + ": " + error.reason +
                         ". Nothing was imported.");
    }
}

} // namespace

std::unique_ptr<ImportReader> csvImport(const ImportOptions & /*options*/)
{
    return std::make_unique<CsvImport>();
}

} // namespace formats
