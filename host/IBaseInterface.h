// SPDX-License-Identifier: MIT
#pragma once

/// Root of the plug-in interfaces. The order of the virtual operations here and
/// in the derived interfaces is binary contract: never reorder, never insert.
/// All operations of all interfaces are called on the GUI thread.
class IBaseInterface
{
public:
    virtual ~IBaseInterface() = default;

    /// Gives the interface back to the plug-in.
    virtual void Release() = 0;
    /// Code of the last error, 0 for none.
    virtual int GetLastError() = 0;
};
