// SPDX-License-Identifier: MIT
#include "HistoryWatch.h"

namespace refdialer
{

using history::Result;
using history::Store;

HistoryWatch::HistoryWatch(const std::string &storePath, QObject *parent)
    : QObject(parent)
    , m_store(storePath)
{
}

void HistoryWatch::look()
{
    if (m_isLooking)
        return;
    m_isLooking = true;
    m_store.read(
        this, [](const Store &store) { return store.fingerprint(); },
        [this](const Result<std::uint64_t> &fingerprint) { answer(fingerprint); });
}

void HistoryWatch::answer(const Result<std::uint64_t> &fingerprint)
{
    m_isLooking = false;
    if (fingerprint)
        emit seen(fingerprint.value());
}

} // namespace refdialer
