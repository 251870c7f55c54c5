// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QPair>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>

class IPluginContainer;

namespace refhost
{

/// What the host application has told so far (see Host.h).
struct HostState {
    QPointer<QWidget> mainWindow;
    IPluginContainer *pluginContainer = nullptr;
    int openQuestions = 0; ///< one may be asked from within another
    std::function<void()> confirmationHandler;
    QMap<QPair<QString, QString>, QString> temporarySettings; ///< by group and key
};

HostState &hostState();

} // namespace refhost
