// SPDX-License-Identifier: MIT
#pragma once

#include "IBaseInterface.h"
#include "IDestroyEvent.h"

#include <QObject>
#include <QString>

/// What every plug-in answers, whether it has a window or not.
class IBasePlugin : public IBaseInterface, public IDestroyEvent
{
public:
    /// Builds the plug-in's contents; called once, after loading.
    virtual bool Init() = 0;
    /// Kind of plug-in; the values are the host's.
    virtual int GetPluginType() = 0;
    /// Class identifier, a GUID in text form without braces.
    virtual QString GetCLSID() = 0;
    /// Version word: major in the second-lowest byte, minor in the lowest.
    virtual int GetVersion() = 0;
    /// Name for people, also the context of the plug-in's texts.
    virtual QString GetPluginName() = 0;
    /// Whether the host may unload the library while it runs.
    virtual bool IsAllowRelease() = 0;
    /// Reserved lookup by number: returns 0 on success. Hosts use the
    /// interface identifiers with qobject_cast or qt_metacast instead.
    virtual int QueryInterface(int id, QObject **object) = 0;
};

#define IBasePlugin_iid "com.quorin.skylarkdialer.plugin.IBasePlugin"
Q_DECLARE_INTERFACE(IBasePlugin, IBasePlugin_iid)
