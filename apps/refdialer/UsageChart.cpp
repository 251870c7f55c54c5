// SPDX-License-Identifier: MIT
#include "UsageChart.h"

#include "UsageChartAccessible.h"
#include "UsageText.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace refdialer
{

using usage::UsageBar;

UsageChart::UsageChart(QWidget *parent)
    : QWidget(parent)
{
    makeChartsAccessible();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

void UsageChart::setBars(const std::vector<UsageBar> &bars, usage::BarUnit unit,
                         const QString &note)
{
    const bool isSame =
        bars == m_contents.bars && unit == m_contents.unit && note == m_contents.note;
    if (isSame)
        return;
    const int former = m_contents.current;
    const QDate chosen = former < 0 || unit != m_contents.unit
                             ? QDate()
                             : m_contents.bars[std::size_t(former)].first;
    m_contents.bars = bars;
    m_contents.unit = unit;
    m_contents.note = note;
    m_contents.current = barOf(chosen);
    const bool isAnother = m_contents.current < 0;
    if (isAnother && hasFocus())
        m_contents.current = usualBar();
    pointAt(underMouse() ? barAt(mapFromGlobal(QCursor::pos())) : -1);
    update();
    // New figures of the same bar are read out when they are asked for.
    if (isAnother)
        tellAssistants(*this);
    emit currentChanged(m_contents.current);
}

void UsageChart::setCurrent(int bar)
{
    if (bar == m_contents.current || bar >= int(m_contents.bars.size()))
        return;
    m_contents.current = bar;
    tellCurrent();
}

QString UsageChart::textOf(int bar) const
{
    const UsageBar &values = m_contents.bars[std::size_t(bar)];
    return UsageText::figuresText(UsageText::barName(values, m_contents.unit, locale()), values);
}

QRect UsageChart::placeOf(int bar) const
{
    return UsagePainter(*this, m_contents).geometry().slot(bar);
}

QPixmap UsageChart::picture(const QString &title) const
{
    const int titleHeight = 3 * fontMetrics().lineSpacing();
    ChartContents contents = m_contents;
    contents.current = -1;
    contents.pointedAt = -1;
    contents.hasKeyboard = false;
    QPixmap picture(QSize(width(), height() + titleHeight) * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(palette().color(QPalette::Base));
    QPainter painter(&picture);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(QRect(0, 0, width(), titleHeight), Qt::AlignCenter, title);
    painter.translate(0, titleHeight);
    UsagePainter(*this, contents).paint(painter);
    return picture;
}

QSize UsageChart::sizeHint() const
{
    return UsagePainter::usualSize(fontMetrics());
}

QSize UsageChart::minimumSizeHint() const
{
    return UsagePainter::leastSize(fontMetrics());
}

void UsageChart::changeEvent(QEvent *event)
{
    update(); // another font, palette, language, direction
    QWidget::changeEvent(event);
}

void UsageChart::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    m_contents.hasKeyboard = true;
    if (m_contents.current < 0)
        setCurrent(usualBar());
    else
        tellCurrent();
}

void UsageChart::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    m_contents.hasKeyboard = false;
    update();
}

void UsageChart::keyPressEvent(QKeyEvent *event)
{
    const int last = int(m_contents.bars.size()) - 1;
    const int forward = layoutDirection() == Qt::RightToLeft ? Qt::Key_Left : Qt::Key_Right;
    const int current = m_contents.current;
    if (last < 0 || event->modifiers() & ~Qt::KeypadModifier) {
        QWidget::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        setCurrent(event->key() == forward ? std::min(last, current + 1)
                                           : std::max(0, current - 1));
        break;
    case Qt::Key_Home:
        setCurrent(0);
        break;
    case Qt::Key_End:
        setCurrent(last);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void UsageChart::leaveEvent(QEvent *event)
{
    pointAt(-1);
    QWidget::leaveEvent(event);
}

void UsageChart::mouseMoveEvent(QMouseEvent *event)
{
    pointAt(barAt(event->pos()));
}

void UsageChart::mousePressEvent(QMouseEvent *event)
{
    const int bar = barAt(event->pos());
    if (bar >= 0)
        setCurrent(bar);
}

void UsageChart::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    UsagePainter(*this, m_contents).paint(painter);
}

int UsageChart::barAt(const QPoint &point) const
{
    return UsagePainter(*this, m_contents).geometry().barAt(point);
}

int UsageChart::barOf(const QDate &first) const
{
    const auto found = std::find_if(m_contents.bars.begin(), m_contents.bars.end(),
                                    [&first](const UsageBar &bar) { return bar.first == first; });
    return found == m_contents.bars.end() ? -1 : int(found - m_contents.bars.begin());
}

/// The last one with something in it, else the first.
int UsageChart::usualBar() const
{
    for (int bar = int(m_contents.bars.size()) - 1; bar > 0; --bar) {
        if (m_contents.bars[std::size_t(bar)].total() > 0)
            return bar;
    }
    return m_contents.bars.empty() ? -1 : 0;
}

void UsageChart::pointAt(int bar)
{
    if (bar == m_contents.pointedAt)
        return;
    m_contents.pointedAt = bar;
    update();
    emit pointedAt(bar);
}

void UsageChart::tellCurrent()
{
    update();
    tellAssistants(*this);
    emit currentChanged(m_contents.current);
}

} // namespace refdialer
