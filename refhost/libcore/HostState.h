// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

class IPluginContainer;

namespace refhost
{

/// What the host application has told so far (see Host.h).
struct HostState {
    QPointer<QWidget> mainWindow;
    IPluginContainer *pluginContainer = nullptr;
};

HostState &hostState();

} // namespace refhost
