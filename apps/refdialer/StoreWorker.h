// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"

#include <QObject>
#include <QPointer>
#include <QThread>

#include <optional>
#include <string>
#include <type_traits>
#include <utility>

namespace refdialer
{

/// Works with a store on a thread of its own: one that another program keeps locked, or that
/// takes long to read, must not hold up the window. What is asked for is done in that order.
class StoreWorker : public QObject
{
public:
    explicit StoreWorker(std::string path, QObject *parent = nullptr);
    /// Whatever has been asked for is done before, and not answered any more.
    ~StoreWorker() override;

    /// Calls `work` with the store on that thread, then `then` with what it has returned, a
    /// Result, on this one, unless `receiver` has gone. The store is one for watching: what
    /// it cannot answer at once, because it is locked, is an error.
    template <typename Work, typename Then>
    void read(QObject *receiver, Work work, Then then)
    {
        run(
            receiver, [this, work] { return onWatchedStore(work); }, then);
    }

    /// The same with a store that is there to be changed, is made if it is not there and is
    /// waited for if it is locked.
    template <typename Work, typename Then>
    void write(QObject *receiver, Work work, Then then)
    {
        run(
            receiver, [this, work] { return onNewStore(work); }, then);
    }

    /// Returns when everything asked for is answered.
    void finish();

private:
    template <typename Work>
    using Answer = std::invoke_result_t<Work, history::Store &>;

    template <typename Job, typename Then>
    void run(QObject *receiver, Job job, Then then)
    {
        const QPointer<QObject> stillThere(receiver);
        QMetaObject::invokeMethod(&m_place, [this, stillThere, job, then] {
            auto answer = job();
            QMetaObject::invokeMethod(this, [stillThere, then, answer = std::move(answer)] {
                if (stillThere)
                    then(answer);
            });
        });
    }

    template <typename Work>
    Answer<Work> onWatchedStore(const Work &work)
    {
        if (!m_watched) {
            auto opened = history::Store::openForWatching(m_path);
            if (!opened)
                return opened.error();
            m_watched.emplace(std::move(opened.value()));
        }
        return work(*m_watched);
    }

    template <typename Work>
    Answer<Work> onNewStore(const Work &work)
    {
        auto opened = history::Store::openOrCreate(m_path);
        if (!opened)
            return opened.error();
        return work(opened.value());
    }

    const std::string m_path;
    QThread m_thread;
    QObject m_place;                         ///< lives on that thread
    std::optional<history::Store> m_watched; ///< used there only
};

} // namespace refdialer
