// SPDX-License-Identifier: MIT
#pragma once

#include "ImportReader.h"

#include <cstdint>
#include <string_view>

namespace formats
{

/// Reads files of any length, of which one connection at a time is held.
class SpooledImport : public ImportReader
{
public:
    SpooledImport();
    Imported imported() override { return std::move(m_imported); }

protected:
    /// Throws InputError if there is no room for it.
    void add(const history::Connection &connection);
    /// One that still lasted when the file was written: it comes again when it has ended.
    void addRunning(std::int64_t line, std::string_view text);

private:
    Imported m_imported;
};

} // namespace formats
