// SPDX-License-Identifier: MIT
#pragma once

#include "usage/SizeAxis.h"

#include <QPoint>
#include <QRect>

#include <cstdint>

namespace refdialer
{

/// Where the bars of a chart stand: in slots of equal width, side by side in the direction of
/// reading, however narrow.
class ChartGeometry
{
public:
    ChartGeometry() = default;
    ChartGeometry(const QRect &plot, int bars, const usage::SizeAxis &axis,
                  Qt::LayoutDirection direction);

    const QRect &plot() const { return m_plot; }
    double slotWidth() const;
    /// As high as the plot.
    QRect slot(int bar) const;
    /// The part of a bar's slot that it fills from one size up to another one.
    QRect part(int bar, double from, double to) const;
    /// The slot at that point of the plot; -1 beside the plot.
    int barAt(const QPoint &point) const;
    /// The line of that size.
    int y(double bytes) const;

private:
    /// The edge of a slot that reading begins at, in a plot read from the left.
    int edge(int bar) const;

    QRect m_plot;
    int m_bars = 0;
    double m_top = 1;
    Qt::LayoutDirection m_direction = Qt::LeftToRight;
};

} // namespace refdialer
