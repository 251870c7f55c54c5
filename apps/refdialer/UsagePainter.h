// SPDX-License-Identifier: MIT
#pragma once

#include "ChartGeometry.h"
#include "PartPainter.h"
#include "usage/UsageBars.h"

#include <QFontMetrics>
#include <QLocale>
#include <QPalette>
#include <QString>

#include <vector>

class QPainter;
class QWidget;

namespace refdialer
{

/// What a chart of usage shows.
struct ChartContents {
    std::vector<usage::UsageBar> bars;
    usage::BarUnit unit = usage::BarUnit::Day;
    int current = -1;         ///< the bar whose figures are told; -1 for none
    int pointedAt = -1;       ///< the one under the mouse
    bool hasKeyboard = false; ///< the current one is where the keyboard acts
    QString note;             ///< stands in the place of bars where there is none to see
};

/// Draws a chart in the font, the colours and the direction of a widget.
class UsagePainter
{
public:
    /// The contents outlive it.
    UsagePainter(const QWidget &widget, const ChartContents &contents);

    const ChartGeometry &geometry() const { return m_geometry; }
    void paint(QPainter &painter) const;

    /// The room that a chart in this font needs to be read, and the one it likes.
    static QSize leastSize(const QFontMetrics &metrics);
    static QSize usualSize(const QFontMetrics &metrics);

private:
    /// Bars of one month, or of the one year.
    struct Group {
        QDate first;
        QRect room; ///< below them
    };

    QRect plotFor(const usage::SizeAxis &axis) const;
    int mostSteps() const;
    QString numberOf(const usage::UsageBar &bar) const;
    int numberDistance() const;
    std::vector<Group> groups() const;
    QString groupText(const Group &group) const;

    void paintAxis(QPainter &painter) const;
    void paintMark(QPainter &painter, int bar) const;
    void paintFocus(QPainter &painter) const;
    void paintBar(QPainter &painter, int bar) const;
    void paintNumbers(QPainter &painter) const;
    void paintGroups(QPainter &painter) const;

    const QRect m_area;
    const QPalette m_palette;
    const QFontMetrics m_metrics;
    const QLocale m_locale;
    const Qt::LayoutDirection m_direction;
    const PartPainter m_parts;
    const ChartContents &m_contents;
    usage::SizeAxis m_axis;
    ChartGeometry m_geometry;
};

} // namespace refdialer
