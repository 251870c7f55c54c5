// SPDX-License-Identifier: MIT
#include "NamedStore.h"

HandedOut handOut()
{
    HandedOut result;
    _KORA_ST_CONNRECORD *records = nullptr;
    int count = 0;
    result.status = KORA_Statistics_GetAllConnRecord(&records, &count);
    result.records.assign(records, records + count);
    KORA_Statistics_ReleaseConnRecord(records);
    return result;
}

NamedStore::NamedStore()
{
    use("connections.db");
}

NamedStore::~NamedStore()
{
    // The functions keep their file open until another one is named, which must
    // be before the folder is deleted.
    qputenv("NETINFO_STORE", "/nonexistent/connections.db");
    handOut();
    qunsetenv("NETINFO_STORE");
}

void NamedStore::use(const char *fileName)
{
    m_path = m_folder.filePath(QString::fromLatin1(fileName)).toStdString();
    qputenv("NETINFO_STORE", m_path.c_str());
}
