// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"

#include <QObject>
#include <QThread>

#include <optional>
#include <string>

namespace refdialer
{

/// Looks at the store, on a thread of its own: a store that another program keeps
/// locked must not hold up the window.
class HistoryWatch : public QObject
{
    Q_OBJECT

public:
    explicit HistoryWatch(const std::string &storePath, QObject *parent = nullptr);
    ~HistoryWatch() override;

    /// Answered later with seen(), unless the store cannot be read. Asking again before
    /// that is of no account.
    void look();

signals:
    /// The store's fingerprint (see Store) after look().
    void seen(quint64 fingerprint);

private:
    void readStore();
    void answer(std::optional<quint64> fingerprint);

    const std::string m_storePath;
    QThread m_thread;
    QObject m_reader;                      ///< lives on that thread
    std::optional<history::Store> m_store; ///< used there only
    bool m_isLooking = false;
};

} // namespace refdialer
