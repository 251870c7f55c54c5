// SPDX-License-Identifier: MIT
#pragma once

#include "IDialupUIService.h"

#include <QObject>

namespace refhost
{

/// The plug-in's root object.
class DialupService : public QObject, public IDialupUIService
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IDialupUIService_iid FILE "DialupService.json")
    Q_INTERFACES(IDialupUIService)

public:
    DialupService() = default;
    ~DialupService() override;
};

} // namespace refhost
