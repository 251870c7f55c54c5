// SPDX-License-Identifier: MIT
#include "UsagePainter.h"

#include "UsageText.h"
#include "usage/SaturatingMath.h"
#include "usage/SizeText.h"

#include <QPainter>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace refdialer
{

namespace
{

using usage::BarUnit;
using usage::SizeAxis;
using usage::UsageBar;
using usage::UsagePart;

std::int64_t largestTotal(const std::vector<UsageBar> &bars)
{
    std::int64_t largest = 0;
    for (const UsageBar &bar : bars)
        largest = std::max(largest, bar.total());
    return largest;
}

QString axisText(const SizeAxis &axis, int line)
{
    return usage::shortSizeText(usage::scaledDown(axis.step, line, 1));
}

UsagePart largestPart(const UsageBar &bar)
{
    return UsagePart(std::max_element(bar.bytes.begin(), bar.bytes.end()) - bar.bytes.begin());
}

} // namespace

UsagePainter::UsagePainter(const QWidget &widget, const ChartContents &contents)
    : m_area(widget.rect())
    , m_palette(widget.palette())
    , m_metrics(widget.font(), &widget)
    , m_locale(widget.locale())
    , m_direction(widget.layoutDirection())
    , m_parts(m_area, m_palette, m_metrics, m_direction)
    , m_contents(contents)
    , m_axis(usage::sizeAxisFor(largestTotal(contents.bars), mostSteps()))
    , m_geometry(plotFor(m_axis), int(contents.bars.size()), m_axis, m_direction)
{
}

void UsagePainter::paint(QPainter &painter) const
{
    painter.fillRect(m_area, m_palette.base());
    painter.setLayoutDirection(m_direction);
    m_parts.paintLegend(painter);
    paintMark(painter, m_contents.pointedAt);
    paintMark(painter, m_contents.current);
    paintAxis(painter);
    for (int bar = 0; bar < int(m_contents.bars.size()); ++bar)
        paintBar(painter, bar);
    paintNumbers(painter);
    paintGroups(painter);
    painter.setPen(m_parts.shade(1));
    painter.drawText(m_geometry.plot(), int(Qt::AlignCenter) | Qt::TextWordWrap, m_contents.note);
    if (m_contents.hasKeyboard)
        paintFocus(painter);
}

QSize UsagePainter::leastSize(const QFontMetrics &metrics)
{
    return {metrics.averageCharWidth() * 40, metrics.lineSpacing() * 11};
}

QSize UsagePainter::usualSize(const QFontMetrics &metrics)
{
    return {metrics.averageCharWidth() * 100, metrics.lineSpacing() * 22};
}

int UsagePainter::mostSteps() const
{
    constexpr int least = 2;
    constexpr int most = 5; // of 200 MB make less than a gigabyte
    const int linesOfText = plotFor({}).height() / m_metrics.height();
    return std::clamp(linesOfText / 2, least, most);
}

/// Between the legend and two lines of text, beside the sizes of the axis.
QRect UsagePainter::plotFor(const SizeAxis &axis) const
{
    const int gap = m_metrics.height() / 2;
    int widest = 0;
    for (int line = 0; line <= axis.steps; ++line)
        widest = std::max(widest, m_metrics.horizontalAdvance(axisText(axis, line)));
    const int top = m_parts.legendBottom() + 2 * gap;
    const int bottom = m_area.bottom() - 2 * m_metrics.lineSpacing() - gap;
    const QRect plot(QPoint(m_area.left() + widest + 2 * gap, top),
                     QPoint(m_area.right() - gap, std::max(top, bottom)));
    return QStyle::visualRect(m_direction, m_area, plot);
}

QString UsagePainter::numberOf(const UsageBar &bar) const
{
    return m_contents.unit == BarUnit::Day
               ? QString::number(bar.first.day())
               : m_locale.standaloneMonthName(bar.first.month(), QLocale::ShortFormat);
}

/// From one bar with a number to the next; 0 if there is no room for any.
int UsagePainter::numberDistance() const
{
    int widest = 0;
    for (const UsageBar &bar : m_contents.bars)
        widest = std::max(widest, m_metrics.horizontalAdvance(numberOf(bar)));
    const int needed = widest + m_metrics.averageCharWidth();
    for (const int distance : {1, 2, 5, 10}) {
        if (distance * m_geometry.slotWidth() >= needed)
            return distance;
    }
    return 0;
}

std::vector<UsagePainter::Group> UsagePainter::groups() const
{
    std::vector<Group> groups;
    const QPoint lower(0, m_geometry.plot().height() + m_metrics.lineSpacing() +
                              m_metrics.height() / 4);
    for (int i = 0; i < int(m_contents.bars.size()); ++i) {
        const QDate first = m_contents.bars[std::size_t(i)].first;
        QRect room = m_geometry.slot(i).translated(lower);
        room.setHeight(m_metrics.lineSpacing());
        const bool isNext = groups.empty() || (m_contents.unit == BarUnit::Day && first.day() == 1);
        if (isNext)
            groups.push_back({first, room});
        else
            groups.back().room |= room;
    }
    return groups;
}

/// The longest name that there is room for; may be empty.
QString UsagePainter::groupText(const Group &group) const
{
    if (m_contents.unit == BarUnit::Month)
        return QString::number(group.first.year());
    const QString texts[] = {
        UsageText::monthName(group.first, m_locale),
        UsageText::monthNameAlone(group.first, m_locale),
        m_locale.standaloneMonthName(group.first.month(), QLocale::ShortFormat),
    };
    for (const QString &text : texts) {
        if (m_metrics.horizontalAdvance(text) + m_metrics.averageCharWidth() <= group.room.width())
            return text;
    }
    return {};
}

void UsagePainter::paintAxis(QPainter &painter) const
{
    constexpr double faint = 0.25;
    const QRect plot = m_geometry.plot();
    const int gap = m_metrics.height() / 2;
    const QRect outer = QStyle::visualRect(m_direction, m_area, plot);
    for (int line = 0; line <= m_axis.steps; ++line) {
        const int y = m_geometry.y(double(m_axis.step) * line);
        painter.setPen(m_parts.shade(line == 0 ? 1 : faint));
        painter.drawLine(plot.left(), y, plot.right(), y);
        const QRect room(m_area.left(), y - m_metrics.height() / 2,
                         outer.left() - gap - m_area.left(), m_metrics.height());
        painter.setPen(m_parts.shade(1));
        painter.drawText(QStyle::visualRect(m_direction, m_area, room),
                         Qt::AlignRight | Qt::AlignVCenter | Qt::TextForceLeftToRight,
                         axisText(m_axis, line));
    }
}

void UsagePainter::paintMark(QPainter &painter, int bar) const
{
    constexpr double faint = 0.15;
    if (bar >= 0)
        painter.fillRect(m_geometry.slot(bar), m_parts.shade(faint));
}

/// Around the current bar, or around all where there is none.
void UsagePainter::paintFocus(QPainter &painter) const
{
    constexpr int width = 2;
    const int bar = m_contents.current;
    const QRect place = bar < 0 ? m_area : m_geometry.slot(bar).adjusted(-1, -1, 1, 1);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(m_parts.shade(1), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(place.adjusted(1, 1, -1, -1));
}

void UsagePainter::paintBar(QPainter &painter, int bar) const
{
    const UsageBar &values = m_contents.bars[std::size_t(bar)];
    double below = 0;
    for (int part = 0; part < usage::usagePartCount; ++part) {
        const double above = below + double(values.bytes[std::size_t(part)]);
        m_parts.paint(painter, m_geometry.part(bar, below, above), UsagePart(part));
        below = above;
    }
    // However little it is, it is not nothing.
    const QRect whole = m_geometry.part(bar, 0, below);
    if (below > 0 && whole.height() == 0)
        m_parts.paint(painter, whole.adjusted(0, -1, 0, 0), largestPart(values));
}

void UsagePainter::paintNumbers(QPainter &painter) const
{
    const int distance = numberDistance();
    if (distance == 0)
        return;
    painter.setPen(m_parts.shade(1));
    const int width = int(distance * m_geometry.slotWidth());
    const int top = m_geometry.plot().bottom() + 1 + m_metrics.height() / 4;
    for (int bar = 0; bar < int(m_contents.bars.size()); bar += distance) {
        QRect room(0, top, width, m_metrics.height());
        room.moveCenter({m_geometry.slot(bar).center().x(), room.center().y()});
        painter.drawText(room, Qt::AlignCenter, numberOf(m_contents.bars[std::size_t(bar)]));
    }
}

void UsagePainter::paintGroups(QPainter &painter) const
{
    painter.setPen(m_parts.shade(1));
    for (const Group &group : groups())
        painter.drawText(group.room, Qt::AlignLeft | Qt::AlignVCenter, groupText(group));
}

} // namespace refdialer
