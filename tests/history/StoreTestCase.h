// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTemporaryDir>

#include <memory>
#include <string>

/// Tests of a store, each of which has a new folder for it. A test that needs more
/// before or after has slots of its own that call these.
class StoreTestCase : public QObject
{
    Q_OBJECT

protected slots:
    void init();
    void cleanup();

protected:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::string m_path; ///< nothing is there yet
};
