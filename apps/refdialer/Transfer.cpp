// SPDX-License-Identifier: MIT
#include "Transfer.h"

#include "apps/common/SentenceText.h"
#include "formats/InputError.h"

#include <QCoreApplication>

#include <new>
#include <utility>

namespace refdialer
{

Transfer::Transfer(Work work, QObject *parent)
    : QObject(parent)
    , m_work(std::move(work))
{
    m_worker.moveToThread(&m_thread);
}

Transfer::~Transfer()
{
    cancel();
    m_thread.quit();
    m_thread.wait();
}

void Transfer::start()
{
    m_thread.start();
    QMetaObject::invokeMethod(&m_worker, [this] { run(); });
}

void Transfer::run()
{
    const TransferResult result = resultOfWork();
    QMetaObject::invokeMethod(this, [this, result] { emit finished(result); });
}

TransferResult Transfer::resultOfWork()
{
    try {
        TransferProgress progress(m_isCancelled, [this](const TransferState &state) {
            QMetaObject::invokeMethod(this, [this, state] { emit progressed(state); });
        });
        return m_work(progress);
    } catch (const TransferCancelled &) {
        return {TransferResult::Kind::Cancelled, {}, {}};
    } catch (const TransferFailure &failure) {
        return {TransferResult::Kind::Failed, {}, failure.sentence};
    } catch (const formats::InputError &error) {
        return {TransferResult::Kind::Failed, {}, common::sentenceText(error.sentence())};
    } catch (const std::bad_alloc &) {
        return {TransferResult::Kind::Failed,
                {},
                tr("There is not enough memory for this. Close other programs, or take smaller "
                   "files.")};
    }
}

} // namespace refdialer
