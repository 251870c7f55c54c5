// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

class QIODevice;

namespace connrecord
{

/// One line on a terminal that tells how far a long operation is, and that is
/// gone when the operation ends. A short one leaves the terminal alone.
class ProgressLine
{
public:
    /// `terminal` may be null: then nothing is shown. The line is written anew
    /// each time another `step` is done; `total` is 0 where it is not known.
    ProgressLine(QIODevice *terminal, std::string activity, std::int64_t step, std::int64_t total);
    ~ProgressLine();
    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;

    void update(std::int64_t done);

private:
    void show(std::int64_t done);

    QIODevice *m_terminal;
    std::string m_activity;
    std::int64_t m_step;
    std::int64_t m_total;
    std::int64_t m_nextStop;
    bool m_isShown = false;
};

} // namespace connrecord
