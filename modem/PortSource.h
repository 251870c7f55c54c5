// SPDX-License-Identifier: MIT
#pragma once

#include "modem/DataPort.h"

#include <QObject>

#include <map>
#include <optional>

namespace modem
{

/// Where news about the data ports of modems come from. To be used on the thread that
/// it lives in; nobody may delete it from within one of its signals.
class PortSource : public QObject
{
    Q_OBJECT

public:
    using Ports = std::map<QString, DataPort>; ///< by the interface's name

    using QObject::QObject;

    /// Begins to watch. Never waits for anybody: what is known comes with the signals.
    virtual void start() = 0;

    /// Whether ports() are all there are. While it is false, a port that is missing or
    /// not connected says nothing: whoever could tell is away, or has not told yet.
    virtual bool isAvailable() const = 0;

    virtual const Ports &ports() const = 0;

    /// The interface's port, if it is one.
    std::optional<DataPort> port(const QString &interfaceName) const
    {
        const auto found = ports().find(interfaceName);
        return found == ports().end() ? std::nullopt : std::optional(found->second);
    }

signals:
    /// port(interfaceName) has changed, come or gone.
    void changed(const QString &interfaceName);
    /// isAvailable() has changed. Comes before the changes of ports that are no longer
    /// known, and after those of ports that have become known.
    void availabilityChanged(bool isAvailable);
};

} // namespace modem
