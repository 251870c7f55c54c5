// SPDX-License-Identifier: MIT
#include "StoreWorker.h"

#include <QCoreApplication>
#include <QEvent>

namespace refdialer
{

StoreWorker::StoreWorker(std::string path, QObject *parent)
    : QObject(parent)
    , m_path(std::move(path))
{
    m_place.moveToThread(&m_thread);
    m_thread.start();
}

StoreWorker::~StoreWorker()
{
    QMetaObject::invokeMethod(&m_place, [this] { m_thread.quit(); });
    m_thread.wait();
}

void StoreWorker::finish()
{
    QMetaObject::invokeMethod(
        &m_place, [] {}, Qt::BlockingQueuedConnection);
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

} // namespace refdialer
