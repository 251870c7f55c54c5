// SPDX-License-Identifier: MIT
#pragma once

#include "HostApi.h"

#include <QString>
#include <QStringList>

#include <functional>

class IPluginContainer;
class QWidget;

/// What the host application tells libcore about itself, so that libcore can
/// answer the plug-ins. All functions are called on the GUI thread.
namespace refhost
{

/// The window that CommonUtils::GetMainWindow answers with from now on; null
/// for none. The caller keeps the ownership, a destroyed window counts as none.
HOST_API void setMainWindow(QWidget *window);

/// The container that Startup::GetPluginContainer answers with from now on; null
/// for none. The caller keeps the ownership and takes it back before it goes.
HOST_API void setPluginContainer(IPluginContainer *container);

/// Whether a plug-in waits for CommonUtils::ShowMessage to return, and so is about to
/// act on what it knew when it asked.
HOST_API bool isQuestionOpen();

/// Called whenever the user has confirmed what a plug-in asked, before the plug-in hears
/// of it and acts; an empty one is not called.
HOST_API void setConfirmationHandler(std::function<void()> handler);

/// Codes of the languages that texts are there for, such as "de", sorted.
HOST_API QStringList availableLanguages();

/// What speakers of the language call it, or the code itself if it is unknown.
HOST_API QString languageName(const QString &language);

/// Whether speakers of the language have read its texts; false if it is unknown.
HOST_API bool isLanguageReviewed(const QString &language);

/// Shows all texts in this language from now on, and lays windows out in the direction
/// in which it is written; every window is told with a LanguageChange event. False, and
/// nothing changes, if there are no texts for it.
HOST_API bool setLanguage(const QString &language);

/// The code that setLanguage accepted last, empty before that.
HOST_API QString language();

/// Keeps a setting for CommonUtils::GetSettings, in this and later runs. False
/// if the settings file cannot be written.
HOST_API bool storeSetting(const QString &group, const QString &key, const QString &value);

/// The file that settings are kept in.
HOST_API QString settingsFile();

} // namespace refhost
