// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QPluginLoader>

namespace refdialer
{

/// A plug-in without a window of its own, which other plug-ins look for by its
/// class identifier. It is loaded as long as this object lives.
class ServicePlugin
{
    Q_DECLARE_TR_FUNCTIONS(refdialer::ServicePlugin)

public:
    /// The dial-up service that came with this program.
    static QString dialupServiceFile();

    /// Throws Failure (PluginNotLoaded) if the file is no plug-in.
    explicit ServicePlugin(const QString &file);
    ServicePlugin(const ServicePlugin &) = delete;
    ServicePlugin &operator=(const ServicePlugin &) = delete;
    ~ServicePlugin();

    QObject *root() const { return m_root; }
    /// As the plug-in's metadata say it.
    QString classId() const;

private:
    QPluginLoader m_loader;
    QObject *m_root;
};

} // namespace refdialer
