// SPDX-License-Identifier: MIT
#include "HistoryWatch.h"

namespace refdialer
{

HistoryWatch::HistoryWatch(const std::string &storePath, QObject *parent)
    : QObject(parent)
    , m_storePath(storePath)
{
    m_reader.moveToThread(&m_thread);
    m_thread.start();
}

HistoryWatch::~HistoryWatch()
{
    m_thread.quit();
    m_thread.wait();
}

void HistoryWatch::look()
{
    if (m_isLooking)
        return;
    m_isLooking = true;
    QMetaObject::invokeMethod(&m_reader, [this] { readStore(); });
}

void HistoryWatch::readStore()
{
    if (!m_store) {
        if (auto opened = history::Store::openForWatching(m_storePath))
            m_store.emplace(std::move(opened.value()));
    }
    std::optional<quint64> fingerprint;
    if (m_store) {
        if (const auto read = m_store->fingerprint())
            fingerprint = read.value();
    }
    QMetaObject::invokeMethod(this, [this, fingerprint] { answer(fingerprint); });
}

void HistoryWatch::answer(std::optional<quint64> fingerprint)
{
    m_isLooking = false;
    if (fingerprint)
        emit seen(*fingerprint);
}

} // namespace refdialer
