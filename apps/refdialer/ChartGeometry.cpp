// SPDX-License-Identifier: MIT
#include "ChartGeometry.h"

#include <QStyle>

#include <algorithm>
#include <cmath>

namespace refdialer
{

ChartGeometry::ChartGeometry(const QRect &plot, int bars, const usage::SizeAxis &axis,
                             Qt::LayoutDirection direction)
    : m_plot(plot)
    , m_bars(bars)
    , m_top(axis.top())
    , m_direction(direction)
{
}

double ChartGeometry::slotWidth() const
{
    return m_bars == 0 ? m_plot.width() : double(m_plot.width()) / m_bars;
}

int ChartGeometry::edge(int bar) const
{
    return m_plot.left() + int(bar * slotWidth());
}

QRect ChartGeometry::slot(int bar) const
{
    const int left = edge(bar);
    const QRect slot(left, m_plot.top(), std::max(1, edge(bar + 1) - left), m_plot.height());
    return QStyle::visualRect(m_direction, m_plot, slot);
}

QRect ChartGeometry::part(int bar, double from, double to) const
{
    constexpr int leastForGap = 4;
    const QRect whole = slot(bar);
    const int gap = whole.width() < leastForGap ? 0 : std::max(1, whole.width() / 6);
    const int top = y(to);
    return {whole.left() + gap, top, whole.width() - 2 * gap + (gap == 0 ? 0 : 1), y(from) - top};
}

int ChartGeometry::barAt(const QPoint &point) const
{
    if (!m_plot.contains(point) || m_bars == 0)
        return -1;
    const int x = QStyle::visualPos(m_direction, m_plot, point).x() - m_plot.left();
    return std::min(m_bars - 1, int(std::ceil((x + 1) / slotWidth())) - 1);
}

int ChartGeometry::y(double bytes) const
{
    const int bottom = m_plot.top() + m_plot.height();
    return bottom - qRound(bytes / m_top * m_plot.height());
}

} // namespace refdialer
