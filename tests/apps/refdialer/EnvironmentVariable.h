// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QtGlobal>

/// Has another value, or none if that is empty, while this lives.
class EnvironmentVariable
{
public:
    EnvironmentVariable(const char *name, const QByteArray &value)
        : m_name(name)
        , m_former(qgetenv(name))
    {
        set(value);
    }
    ~EnvironmentVariable() { set(m_former); }
    Q_DISABLE_COPY(EnvironmentVariable)

private:
    void set(const QByteArray &value) const
    {
        if (value.isEmpty())
            qunsetenv(m_name);
        else
            qputenv(m_name, value);
    }

    const char *const m_name;
    const QByteArray m_former;
};
