// SPDX-License-Identifier: MIT
#pragma once

#include "Campaign.h"
#include "KeptStates.h"
#include "PowerDisk.h"
#include "history/Store.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>

/// A recorder, whose changes are kept once they are told, and a window, whose changes are
/// kept with those or when both have ended, on one store. They begin, finish, add, import
/// and remove connections at random.
class StorePrograms
{
public:
    StorePrograms(campaign::Random &random, const PowerDisk &disk, std::string path)
        : m_random(random)
        , m_disk(disk)
        , m_path(std::move(path))
    {
    }

    /// Until the power fails; returns what was wrong before that.
    QString run();
    /// Opens the store and returns what is wrong with it.
    QString start();
    /// How often the store has asked the user to touch its log, which was done.
    int touched() const { return m_touched; }

private:
    using State = KeptStates::State;

    void end();
    QString restart();
    QString change();
    QString begin();
    QString checkpoint(std::int64_t number);
    QString finish(std::int64_t number);
    QString add();
    QString import();
    QString remove();
    history::OpenConnection openConnection(std::int64_t number) const;
    template <typename Operation>
    QString record(const State &next, Operation operation);
    template <typename Operation>
    QString attempt(const State &next, Operation operation);

    campaign::Random &m_random;
    const PowerDisk &m_disk;
    std::string m_path;
    KeptStates m_kept;
    int m_touched = 0;
    std::int64_t m_number = 0; ///< of the connection that was made last
    std::optional<history::Store> m_recorder;
    std::optional<history::Store> m_window;
};
