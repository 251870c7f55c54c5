// SPDX-License-Identifier: MIT
#pragma once

#include "HostApi.h"

class IPluginContainer;

/// Where a plug-in finds the host's other plug-ins (library libcore).
class HOST_API Startup
{
public:
    /// The host's container, or null while there is none; the host owns it.
    static IPluginContainer *GetPluginContainer();
};
