// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>

namespace refhost
{

/// The host's settings file, in one group of it.
class Settings : public QSettings
{
public:
    explicit Settings(const QString &group);
};

} // namespace refhost
