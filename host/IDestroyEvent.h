// SPDX-License-Identifier: MIT
#pragma once

/// How a host tells a plug-in that the end is near. It is a base of its own,
/// with a virtual table of its own, beside IBaseInterface.
class IDestroyEvent
{
public:
    virtual ~IDestroyEvent() = default;

    /// Ends everything the plug-in has built; called before the host's main
    /// window goes. The root object itself stays the host's to delete.
    virtual void OnDestroy() = 0;
    /// Asks the plug-in to drop its event registrations with the host's SDKs.
    virtual void UnSDKRegisterEvent() = 0;
};
