// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"

#include <random>
#include <set>
#include <string>
#include <vector>

/// A history to which all that can happen happens at random.
class ChangingHistory
{
public:
    ChangingHistory(const std::string &path, unsigned seed);

    /// A connection begins, moves, ends, is imported late, completed or removed.
    void change();
    /// The bytes sent of each connection, finished or not.
    std::multiset<int> sent() const;
    std::mt19937 &random() { return m_random; }

private:
    void begin();
    void move();
    void finish();
    void importLate();
    void complete();
    void remove();
    /// One of those that are finished; key 0 if there is none.
    history::Connection anyConnection();

    history::Store m_store;
    std::mt19937 m_random;
    std::vector<history::OpenConnection> m_open;
    int m_steps = 0;
};
