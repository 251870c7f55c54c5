// SPDX-License-Identifier: MIT
#include "SpooledImport.h"

#include "InputError.h"
#include "Utf8Text.h"

#include <system_error>

namespace formats
{

using history::translatable;

SpooledImport::SpooledImport()
{
    m_imported.spool = std::make_unique<history::ConnectionSpool>();
}

void SpooledImport::add(const history::Connection &connection)
{
    try {
        m_imported.spool->add(connection);
    } catch (const std::system_error &error) {
        throw InputError(
            {translatable("formats", "What is read cannot be kept in the folder "
                                     "\"%1\" until it is stored: %2. Nothing was "
                                     "imported; make room there, or name another "
                                     "folder in TMPDIR."),
             {printable(history::temporaryFolder(), unlimited), error.code().message()}});
    }
}

void SpooledImport::addRunning(std::int64_t line, std::string_view text)
{
    constexpr std::size_t shownBytes = 200;
    if (m_imported.unusable.empty())
        m_imported.unusable.push_back({translatable("formats", "the connection still lasted"), 0, 0,
                                       0, line, std::string(text.substr(0, shownBytes))});
    ++m_imported.unusable.front().count;
}

} // namespace formats
