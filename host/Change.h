// SPDX-License-Identifier: MIT
#pragma once

#include "HostApi.h"

#include <QString>

/// The host's translation of string identifiers (library libcore).
class HOST_API Change
{
public:
    /// The text that the user sees for `id` in the current language; `context`
    /// is the plug-in's name.
    static QString tr(const QString &id, const QString &context);
};
