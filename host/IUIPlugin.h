// SPDX-License-Identifier: MIT
#pragma once

#include "IBasePlugin.h"

class QRect;
class QWidget;

/// A plug-in that shows itself inside an area of the host's main window.
class IUIPlugin : public IBasePlugin
{
public:
    /// Places the plug-in's window in `parent`, at `rect` in the parent's
    /// coordinates (pixels), and shows it.
    virtual bool ShowWindow(QWidget *parent, QRect &rect) = 0;
    /// Shows the plug-in on its own; returns the result, 0 for none.
    virtual int DoModal() = 0;
    /// Makes the window invisible and keeps its contents.
    virtual void Hide() = 0;
    /// Moves the window to the host area's new rectangle.
    virtual void FitSize(QRect &rect) = 0;
    /// Whether the plug-in has something ready to show.
    virtual bool IsReady() = 0;
    /// Tells the language chosen by the user, such as "en"; false if refused.
    /// The texts themselves follow with the host's event 1024 (see INotify).
    virtual bool ChangeLang(const QString &language) = 0;
};

#define IUIPlugin_iid "com.quorin.skylarkdialer.plugin.IUIPlugin"
Q_DECLARE_INTERFACE(IUIPlugin, IUIPlugin_iid)
