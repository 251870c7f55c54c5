// SPDX-License-Identifier: MIT
#include "Startup.h"

#include "HostState.h"

IPluginContainer *Startup::GetPluginContainer()
{
    return refhost::hostState().pluginContainer;
}
