// SPDX-License-Identifier: MIT
#pragma once

#include "StoreWorker.h"

#include <QObject>

#include <string>

namespace refdialer
{

/// Looks at the store without holding up the window.
class HistoryWatch : public QObject
{
    Q_OBJECT

public:
    explicit HistoryWatch(const std::string &storePath, QObject *parent = nullptr);

    /// Answered later with seen(), unless the store cannot be read. Asking again before
    /// that is of no account.
    void look();

signals:
    /// The store's fingerprint (see Store) after look().
    void seen(quint64 fingerprint);

private:
    void answer(const history::Result<std::uint64_t> &fingerprint);

    StoreWorker m_store;
    bool m_isLooking = false;
};

} // namespace refdialer
