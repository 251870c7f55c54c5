// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QThread>

#include <memory>
#include <optional>

namespace common
{
class PlanWarner;
}
namespace recorder
{
class ConnectionRecorder;
class RecorderClient;
class RecorderService;
struct Problem;
} // namespace recorder

namespace refdialer
{

class LineState;

/// Records connections, and tells so on the session bus; where another program records
/// them, follows that one there. All on a thread of its own, so that a store which another
/// program keeps locked does not hold up the window.
class Recording
{
public:
    /// Records into the store at this path, under this profile or, if that is
    /// empty, under the interfaces' names; `state`, which must live longer, is told
    /// on its own thread what happens.
    Recording(const QString &storePath, const QStringList &interfaceNames, const QString &profile,
              LineState &state);
    Recording(const Recording &) = delete;
    Recording &operator=(const Recording &) = delete;
    /// What is connected stays open in the store, for the next start to resume.
    ~Recording();

    /// Returns when connections that an earlier run left open are settled in the
    /// store. Whether recording is possible is told to the state, also later.
    void start();

    /// Warns soon of data plans that stand otherwise than before.
    void checkPlans();

private:
    bool startOnItsThread();
    void warnOfPlans();
    std::optional<recorder::Problem> endOnItsThread();

    const QString m_storePath;
    LineState &m_state;
    recorder::ConnectionRecorder *m_recorder;             ///< deleted on its thread, when that ends
    std::unique_ptr<recorder::RecorderService> m_service; ///< on the same thread
    std::unique_ptr<recorder::RecorderClient> m_client;   ///< too
    std::unique_ptr<common::PlanWarner> m_planWarner;     ///< too
    QThread m_thread;
};

} // namespace refdialer
