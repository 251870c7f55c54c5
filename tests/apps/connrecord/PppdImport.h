// SPDX-License-Identifier: MIT
#pragma once

#include "ConnrecordRun.h"

#include <QTemporaryDir>

/// A log beside its history in the folder of the tests' data.
QString dataFile(const QString &name);

/// The program's imports of system logs into one new history.
class PppdImport
{
public:
    PppdImport();

    const QString &store() const { return m_store; }
    /// A copy of a log of the tests' data, last changed at this local time.
    QString logFile(const QString &name, const QString &changed) const;
    /// A log of these contents.
    QString writtenLog(const QByteArray &contents, const QString &changed,
                       const QString &name = "messages") const;
    ConnrecordRun import(const QString &path, const QStringList &options = {},
                         const QByteArray &input = {}) const;
    /// The history as CSV.
    QByteArray exported() const;

private:
    QTemporaryDir m_folder;
    QString m_store;
};
