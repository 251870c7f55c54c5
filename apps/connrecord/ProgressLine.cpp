// SPDX-License-Identifier: MIT
#include "ProgressLine.h"

#include <QIODevice>

#include <algorithm>

namespace connrecord
{

namespace
{

constexpr const char *eraseLine = "\r\x1b[K";

} // namespace

ProgressLine::ProgressLine(QIODevice *terminal, std::string activity, std::int64_t step,
                           std::int64_t total)
    : m_terminal(terminal)
    , m_activity(std::move(activity))
    , m_step(step)
    , m_total(total)
    , m_nextStop(step)
{
}

ProgressLine::~ProgressLine()
{
    if (m_isShown)
        m_terminal->write(eraseLine);
}

void ProgressLine::update(std::int64_t done)
{
    if (!m_terminal || done < m_nextStop)
        return;
    m_nextStop = done + m_step;
    show(done);
}

void ProgressLine::show(std::int64_t done)
{
    std::string text = eraseLine + m_activity + ": ";
    if (m_total > 0)
        text += std::to_string(std::min<std::int64_t>(done * 100 / m_total, 100)) + " %";
    else
        text += std::to_string(done);
    m_terminal->write(text.data(), static_cast<qint64>(text.size()));
    m_isShown = true;
}

} // namespace connrecord
