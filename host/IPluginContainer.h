// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

/// The host's collection of loaded plug-ins. The first nine operations belong
/// to the host and are never called by plug-ins; they keep GetPlugin in the
/// tenth slot. There is no virtual destructor, it would shift the slots.
class IPluginContainer
{
public:
    /// The host's own.
    ///@{
    virtual void Reserved1() = 0;
    virtual void Reserved2() = 0;
    virtual void Reserved3() = 0;
    virtual void Reserved4() = 0;
    virtual void Reserved5() = 0;
    virtual void Reserved6() = 0;
    virtual void Reserved7() = 0;
    virtual void Reserved8() = 0;
    virtual void Reserved9() = 0;
    ///@}
    /// Root object of the plug-in with this class identifier (GUID text without
    /// braces) and type code, or null. The container keeps the ownership.
    virtual QObject *GetPlugin(const QString &classId, int type) = 0;

protected:
    ~IPluginContainer() = default;
};
