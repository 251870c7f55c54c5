// SPDX-License-Identifier: MIT
#pragma once

#include "LoadedPlugin.h"

#include <QList>
#include <QObject>
#include <QStringList>

#include <memory>

/// What the tests of deletion share: the built plug-in with some records, and a user who
/// says yes unless a test says otherwise.
class DeletionTest : public QObject
{
    Q_OBJECT

protected:
    void start(int records);
    void selectRows(const QList<int> &rows);
    void trigger(const char *slot);
    QStringList profiles() const;
    static QStringList removals();

    std::unique_ptr<LoadedPlugin> m_plugin;

private Q_SLOTS:
    void init();
    void cleanup();
};
