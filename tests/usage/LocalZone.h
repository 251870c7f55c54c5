// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <time.h>

/// Another zone of local time, for this process and those that it starts, while
/// this object lives.
class LocalZone
{
public:
    explicit LocalZone(const char *name)
        : m_before(qgetenv("TZ"))
    {
        set(name);
    }
    ~LocalZone() { set(m_before); }
    LocalZone(const LocalZone &) = delete;
    LocalZone &operator=(const LocalZone &) = delete;

private:
    static void set(const QByteArray &name)
    {
        if (name.isNull())
            qunsetenv("TZ");
        else
            qputenv("TZ", name);
        tzset();
    }

    const QByteArray m_before;
};
