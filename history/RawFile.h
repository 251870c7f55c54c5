// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace history
{

/// Reads the bytes of a database through SQLite's own file layer: closing a
/// descriptor of our own would drop the locks that this process holds on the same
/// file elsewhere. Operations throw StoreFailure.
class RawFile
{
public:
    explicit RawFile(const std::string &path);
    ~RawFile();
    RawFile(const RawFile &) = delete;
    RawFile &operator=(const RawFile &) = delete;

    /// Fills `bytes` with what is at `offset`, and with zeros behind the file's end.
    void read(std::int64_t offset, void *bytes, std::size_t size);

private:
    sqlite3_file *file() { return reinterpret_cast<sqlite3_file *>(m_storage.get()); }
    void close();

    std::string m_path;
    sqlite3_vfs *m_vfs;
    std::unique_ptr<unsigned char[]> m_storage;
    std::unique_ptr<const char, decltype(&sqlite3_free_filename)> m_name;
};

} // namespace history
