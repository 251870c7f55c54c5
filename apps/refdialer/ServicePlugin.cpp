// SPDX-License-Identifier: MIT
#include "ServicePlugin.h"

#include "Failure.h"
#include "PluginFile.h"

namespace refdialer
{

QString ServicePlugin::dialupServiceFile()
{
    return pluginFile(QStringLiteral(NETINFORECORD_LIBDIR_FROM_BINDIR),
                      QStringLiteral("DialupService"));
}

ServicePlugin::ServicePlugin(const QString &file)
    : m_loader(file)
    , m_root(m_loader.instance())
{
    if (!m_root)
        throw Failure{ExitCode::PluginNotLoaded,
                      tr("The dial-up service %1 cannot be loaded: %2. Install refdialer again, or "
                         "leave the service out with --no-dialup-service.")
                          .arg(file, m_loader.errorString())};
}

ServicePlugin::~ServicePlugin()
{
    m_loader.unload();
}

QString ServicePlugin::classId() const
{
    return ownMetadata(m_loader).value(QStringLiteral("ClassId")).toString();
}

} // namespace refdialer
