// SPDX-License-Identifier: MIT
#include "StoreTestCase.h"

void StoreTestCase::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath("connections.db").toStdString();
}

void StoreTestCase::cleanup()
{
    m_folder.reset();
}
