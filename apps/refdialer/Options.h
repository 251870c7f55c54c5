// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace refdialer
{

/// What the command line asks for; an empty text is an option that was not given.
struct Options {
    QString storeFile;
    QString pluginFile;
    QString language;
    QString pictureFile;
    QStringList interfaceNames;
    QString profile;
    bool isDebug = false;
    bool isDemo = false;
    bool hasDialupService = true;
    /// To print instead of doing anything else: help or version.
    QString information;
};

/// Reads the command line, the program's name first. Throws Failure
/// (WrongUsage) for one that does not fit, an unknown language included.
Options readOptions(const QStringList &arguments);

} // namespace refdialer
