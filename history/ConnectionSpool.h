// SPDX-License-Identifier: MIT
#pragma once

#include "ConnectionSource.h"

#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace history
{

/// Keeps any number of connections, without their keys, for another time: few in memory,
/// what is more in a file without a name, which ends with the process. All of it throws
/// std::system_error.
class ConnectionSpool : public ConnectionSource
{
public:
    /// Behind those that are there; to be called before they are read.
    void add(const Connection &connection);

    std::size_t size() const override { return m_count; }
    TimeRange starts() const override { return m_starts; }
    void rewind() override;
    bool next(Connection &connection) override;

private:
    void write(std::string_view bytes);
    std::string_view read(std::size_t size);

    struct Closing {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Closing> m_file; ///< once they are too many for the memory
    std::string m_memory;
    std::size_t m_position = 0; ///< in the memory
    std::string m_record;
    std::size_t m_count = 0;
    std::size_t m_given = 0;
    TimeRange m_starts = noTime;
};

/// The folder for what is too much for the memory: $TMPDIR if set, else /var/tmp.
std::string temporaryFolder();

} // namespace history
