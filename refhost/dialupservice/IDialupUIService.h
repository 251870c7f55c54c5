// SPDX-License-Identifier: MIT
#pragma once

#include <QtPlugin>

#define IDialupUIService_iid "com.quorin.skylarkdialer.plugin.IDialupUIService"

/// The dial-up service, which other plug-ins only ask for: one that is there
/// means that events about connections can be believed.
class IDialupUIService
{
public:
    virtual ~IDialupUIService() = default;
};

Q_DECLARE_INTERFACE(IDialupUIService, IDialupUIService_iid)
