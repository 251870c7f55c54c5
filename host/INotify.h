// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

/// How a host delivers its events to a plug-in.
class INotify
{
public:
    virtual ~INotify() = default;

    /// Delivers one event; always returns 0. Events that this plug-in knows:
    /// 1024 apply the texts again (language changed); 1536 connection status
    /// in param1 (1 connected, 0 disconnected); 2384 no more summaries.
    virtual unsigned int Notify(unsigned int event, unsigned int param1, unsigned int param2) = 0;
};

#define INotify_iid "com.quorin.skylarkdialer.plugin.INotify"
Q_DECLARE_INTERFACE(INotify, INotify_iid)
