// SPDX-License-Identifier: MIT
#include "Settings.h"

#include "Host.h"
#include "PrivateFile.h"

namespace refhost
{

Settings::Settings(const QString &group)
    : QSettings(QStringLiteral("refdialer"), QStringLiteral("refdialer"))
{
    beginGroup(group);
}

bool storeSetting(const QString &group, const QString &key, const QString &value)
{
    Settings settings(group);
    preparePrivateFile(settings.fileName());
    settings.setValue(key, value);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

QString settingsFile()
{
    return Settings(QString()).fileName();
}

} // namespace refhost
