// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QTemporaryDir>

namespace refdialer
{

/// A copy of a sample history, in a temporary folder that goes with it.
class DemoStore
{
    Q_DECLARE_TR_FUNCTIONS(refdialer::DemoStore)

public:
    /// The sample history that came with this program.
    static QString sampleFile();

    /// Throws Failure (StoreNotUsable) if the sample cannot be copied.
    explicit DemoStore(const QString &sample = sampleFile());

    QString file() const;

private:
    QTemporaryDir m_folder;
};

} // namespace refdialer
