// SPDX-License-Identifier: MIT
#pragma once

#include "usage/UsageBars.h"

#include <QFontMetrics>
#include <QPalette>
#include <QRect>

#include <vector>

class QPainter;

namespace refdialer
{

/// Draws the parts of bars, and the legend that tells which is which. Each differs from the
/// others in brightness or pattern as well as in colour.
class PartPainter
{
public:
    /// The legend stands at the top of the area. What is given outlives this.
    PartPainter(const QRect &area, const QPalette &palette, const QFontMetrics &metrics,
                Qt::LayoutDirection direction);

    /// A colour between that of text (1) and that of what is behind it (0).
    QColor shade(double share) const;
    int legendBottom() const;
    void paintLegend(QPainter &painter) const;
    void paint(QPainter &painter, const QRect &place, usage::UsagePart part) const;

private:
    struct LegendEntry {
        usage::UsagePart part;
        QRect place;
    };
    std::vector<LegendEntry> legend() const;
    QColor colourOf(usage::UsagePart part) const;

    const QRect &m_area;
    const QPalette &m_palette;
    const QFontMetrics &m_metrics;
    const Qt::LayoutDirection m_direction;
};

} // namespace refdialer
