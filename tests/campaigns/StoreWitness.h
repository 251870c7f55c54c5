// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"

#include <QByteArray>
#include <QMap>
#include <QSet>
#include <QString>

#include <cstdint>
#include <vector>

/// Knows from the writers' lines what a store must hold, and says what is missing,
/// doubled or wrong in it.
class StoreWitness
{
public:
    /// Forgets everything: a new store begins.
    void reset();
    /// Takes one line of a writer.
    void take(const QByteArray &line);
    int acknowledged() const { return m_acknowledged; }

    /// What is wrong with the store in this file; empty if nothing is.
    QString complaint(const QString &path) const;

private:
    QString contentsComplaint(const QString &path) const;
    QString listComplaint(const std::vector<history::Connection> &list) const;
    QString openComplaint(const std::vector<history::Connection> &list,
                          const std::vector<history::OpenConnection> &open) const;

    QSet<std::int64_t> m_finished;
    QSet<std::int64_t> m_removing; ///< may be there or not
    QSet<std::int64_t> m_removed;
    QMap<std::int64_t, std::int64_t> m_saved; ///< the last update of what is open
    int m_acknowledged = 0;
};
