// SPDX-License-Identifier: MIT
#include "PartPainter.h"

#include "UsageText.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace refdialer
{

namespace
{

using usage::UsagePart;

bool isRoaming(UsagePart part)
{
    return part == usage::ReceivedRoaming || part == usage::SentRoaming;
}

bool isSent(UsagePart part)
{
    return part == usage::SentAtHome || part == usage::SentRoaming;
}

QColor mixed(const QColor &first, const QColor &second, double share)
{
    const auto mix = [share](int one, int other) {
        return qRound(one * share + other * (1 - share));
    };
    return {mix(first.red(), second.red()), mix(first.green(), second.green()),
            mix(first.blue(), second.blue())};
}

} // namespace

PartPainter::PartPainter(const QRect &area, const QPalette &palette, const QFontMetrics &metrics,
                         Qt::LayoutDirection direction)
    : m_area(area)
    , m_palette(palette)
    , m_metrics(metrics)
    , m_direction(direction)
{
}

QColor PartPainter::shade(double share) const
{
    return mixed(m_palette.color(QPalette::Text), m_palette.color(QPalette::Base), share);
}

int PartPainter::legendBottom() const
{
    return legend().back().place.bottom();
}

void PartPainter::paintLegend(QPainter &painter) const
{
    const int space = m_metrics.height();
    for (const LegendEntry &entry : legend()) {
        const QRect &place = entry.place;
        const QRect colour(place.topLeft(), QSize(space * 3 / 2, space));
        const QRect text = place.adjusted(2 * space, 0, 1, 0);
        const int inset = space / 8;
        paint(
            painter,
            QStyle::visualRect(m_direction, m_area, colour).adjusted(inset, inset, -inset, -inset),
            entry.part);
        painter.setPen(shade(1));
        painter.drawText(QStyle::visualRect(m_direction, m_area, text),
                         Qt::AlignLeft | Qt::AlignVCenter, UsageText::partName(entry.part));
    }
}

void PartPainter::paint(QPainter &painter, const QRect &place, UsagePart part) const
{
    constexpr int leastForOutline = 4;
    if (place.height() <= 0)
        return;
    painter.fillRect(place, colourOf(part));
    if (isRoaming(part))
        painter.fillRect(place, QBrush(shade(isSent(part) ? 1 : 0), Qt::BDiagPattern));
    if (std::min(place.width(), place.height()) < leastForOutline)
        return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(shade(1));
    painter.drawRect(place.adjusted(0, 0, -1, -1));
}

/// One behind the other, in lines if there is too little room.
std::vector<PartPainter::LegendEntry> PartPainter::legend() const
{
    const int space = m_metrics.height();
    std::vector<LegendEntry> entries;
    QPoint corner = m_area.topLeft() + QPoint(space / 2, space / 2);
    for (int i = 0; i < usage::usagePartCount; ++i) {
        const auto part = UsagePart(i);
        const int width = 2 * space + m_metrics.horizontalAdvance(UsageText::partName(part));
        const bool isFirst = corner.x() == m_area.left() + space / 2;
        if (!isFirst && corner.x() + width > m_area.right())
            corner = {m_area.left() + space / 2, corner.y() + m_metrics.lineSpacing()};
        entries.push_back({part, QRect(corner, QSize(width, m_metrics.height()))});
        corner.rx() += width + space / 2;
    }
    return entries;
}

QColor PartPainter::colourOf(UsagePart part) const
{
    constexpr double brightness = 0.4;
    const QColor full =
        m_palette.color(isRoaming(part) ? QPalette::LinkVisited : QPalette::Highlight);
    return isSent(part) ? mixed(full, m_palette.color(QPalette::Base), brightness) : full;
}

} // namespace refdialer
