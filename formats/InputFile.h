// SPDX-License-Identifier: MIT
#pragma once

#include "history/Sentence.h"

#include <QFile>

#include <cstdint>
#include <memory>
#include <string>

namespace formats
{

/// A file to import, or standard input; a compressed one as what it holds.
class InputFile
{
public:
    /// "-" means standard input. Throws InputError if the file cannot be read.
    explicit InputFile(const std::string &path);

    QIODevice &device() { return m_decompressed ? *m_decompressed : m_file; }
    /// For messages.
    const history::Sentence &name() const { return m_name; }
    /// Of what is to be read, in bytes; 0 if it is not known.
    std::int64_t size() const { return m_size; }
    /// Seconds since 1970-01-01 00:00 UTC; of standard input, now.
    std::int64_t modifiedUtc() const { return m_modifiedUtc; }

private:
    void openStandardInput();
    void open(const std::string &path);

    QFile m_file;
    std::unique_ptr<QIODevice> m_decompressed;
    history::Sentence m_name;
    std::int64_t m_size = 0;
    std::int64_t m_modifiedUtc = 0;
};

} // namespace formats
