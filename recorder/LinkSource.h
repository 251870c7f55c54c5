// SPDX-License-Identifier: MIT
#pragma once

#include "LinkTable.h"
#include "Problem.h"

#include <QObject>

#include <vector>

namespace recorder
{

/// Where news about network interfaces come from.
class LinkSource : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Gets to know all links and then watches them; false, after failed(), if
    /// that is not possible.
    virtual bool start() = 0;
    /// All links as they are known at the moment.
    virtual std::vector<Link> links() const = 0;
    /// Asks for the link's counters, which come as a change unless it is gone.
    virtual void requestCounters(int linkIndex) = 0;

    /// Tells of all that has happened until now, answers to requests included.
    virtual void deliverPending() = 0;

signals:
    void linkChanged(const recorder::LinkChange &change);
    void failed(const recorder::Problem &problem);
};

} // namespace recorder
