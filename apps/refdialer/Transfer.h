// SPDX-License-Identifier: MIT
#pragma once

#include "TransferProgress.h"

#include <QObject>
#include <QThread>

#include <atomic>
#include <functional>

namespace refdialer
{

/// What an import or an export has come to, in the language of the program.
struct TransferResult {
    enum class Kind { Done, Cancelled, Failed };

    Kind kind = Kind::Cancelled;
    QString summary; ///< short lines
    QString details; ///< what may be long; mostly empty
};

/// One import or export, on a thread of its own.
class Transfer : public QObject
{
    Q_OBJECT

public:
    /// Called on that thread. Throws TransferFailure, formats::InputError and what the
    /// progress throws; has changed nothing then.
    using Work = std::function<TransferResult(TransferProgress &progress)>;

    explicit Transfer(Work work, QObject *parent = nullptr);
    /// Cancels, and waits until nothing is written any more.
    ~Transfer() override;

    void start();
    /// finished() follows; all may be done by then.
    void cancel() { m_isCancelled = true; }

signals:
    void progressed(const refdialer::TransferState &state);
    void finished(const refdialer::TransferResult &result);

private:
    void run();
    TransferResult resultOfWork();

    const Work m_work;
    std::atomic<bool> m_isCancelled = false;
    QThread m_thread;
    QObject m_worker; ///< lives on that thread
};

} // namespace refdialer
