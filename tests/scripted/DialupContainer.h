// SPDX-License-Identifier: MIT
#pragma once

#include "IPluginContainer.h"

#include <cstring>

namespace scripted
{

/// A plug-in that answers the dial-up service's identifier and nothing else.
class DialupService : public QObject
{
public:
    bool givesService = true;

    void *qt_metacast(const char *name) override
    {
        if (givesService && name &&
            std::strcmp(name, "com.quorin.skylarkdialer.plugin.IDialupUIService") == 0)
            return this;
        return QObject::qt_metacast(name);
    }
};

/// A container with the dial-up plug-in in it; remembers what it was asked.
class DialupContainer : public IPluginContainer
{
public:
    DialupService service;
    bool hasPlugin = true;
    QString askedClassId;
    int askedType = 0;
    int reservedCalls = 0;

    void Reserved1() override { ++reservedCalls; }
    void Reserved2() override { ++reservedCalls; }
    void Reserved3() override { ++reservedCalls; }
    void Reserved4() override { ++reservedCalls; }
    void Reserved5() override { ++reservedCalls; }
    void Reserved6() override { ++reservedCalls; }
    void Reserved7() override { ++reservedCalls; }
    void Reserved8() override { ++reservedCalls; }
    void Reserved9() override { ++reservedCalls; }
    QObject *GetPlugin(const QString &classId, int type) override
    {
        askedClassId = classId;
        askedType = type;
        return hasPlugin ? &service : nullptr;
    }
};

} // namespace scripted
