// SPDX-License-Identifier: MIT
#include "HostState.h"

#include "Host.h"

#include <utility>

namespace refhost
{

HostState &hostState()
{
    static HostState state;
    return state;
}

void setMainWindow(QWidget *window)
{
    hostState().mainWindow = window;
}

bool isQuestionOpen()
{
    return hostState().openQuestions > 0;
}

void setConfirmationHandler(std::function<void()> handler)
{
    hostState().confirmationHandler = std::move(handler);
}

void setPluginContainer(IPluginContainer *container)
{
    hostState().pluginContainer = container;
}

} // namespace refhost
