// SPDX-License-Identifier: MIT
#pragma once

#include "KoraStatistics.h"

#include <QTemporaryDir>

#include <string>
#include <vector>

/// What KORA_Statistics_GetAllConnRecord answers, as values.
struct HandedOut {
    int status = -1;
    std::vector<_KORA_ST_CONNRECORD> records;
};
HandedOut handOut();

/// A temporary folder with the store that the four functions use while it lives.
/// The file itself is made by whoever writes to it first.
class NamedStore
{
public:
    NamedStore();
    ~NamedStore();
    NamedStore(const NamedStore &) = delete;
    NamedStore &operator=(const NamedStore &) = delete;

    /// Names another file of the folder from now on.
    void use(const char *fileName);
    std::string path() const { return m_path; }

private:
    QTemporaryDir m_folder;
    std::string m_path;
};
