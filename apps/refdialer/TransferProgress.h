// SPDX-License-Identifier: MIT
#pragma once

#include "apps/common/Import.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <atomic>
#include <exception>
#include <functional>

namespace refdialer
{

/// How far an import or an export is.
struct TransferState {
    QString text; ///< in the language of the program
    qint64 done = 0;
    qint64 total = 0; ///< 0 if it is not known
};

/// Thrown where one that is to be cancelled can still be.
class TransferCancelled : public std::exception
{
};

/// Thrown for what prevents one.
struct TransferFailure {
    QString sentence; ///< what, where and what to do
};

/// Tells how far an import or an export is, and ends one that has been cancelled.
class TransferProgress : public common::ImportProgress
{
    Q_DECLARE_TR_FUNCTIONS(refdialer::TransferProgress)

public:
    using Listener = std::function<void(const TransferState &state)>;

    /// Listens a few times a second, and whenever something begins.
    TransferProgress(const std::atomic<bool> &isCancelled, Listener listener);

    void beginReading(const std::string &path, const formats::InputFile &file) override;
    void beginStoring(std::int64_t connections) override;
    void beginListing();
    void beginWriting(std::int64_t connections);
    void update(std::int64_t done) override;
    /// Throws TransferCancelled in that case; all of the above do too.
    void check() const;

private:
    enum class Stage { Reading, Storing, Listing, Writing };

    void begin(Stage stage, std::int64_t total);
    void tell(std::int64_t done);
    QString textFor(std::int64_t done) const;

    const std::atomic<bool> &m_isCancelled;
    const Listener m_listener;
    Stage m_stage = Stage::Reading;
    QString m_file;
    std::int64_t m_total = 0;
    QElapsedTimer m_sinceTold;
};

} // namespace refdialer
