// SPDX-License-Identifier: MIT
#include "SumLabel.h"

#include "HistoryArea.h"

#include <QEvent>
#include <QStyle>

namespace refdialer
{

SumLabel::SumLabel(const HistoryArea &area)
    : ElidedLabel(Qt::ElideRight)
    , m_area(area)
{
    // Where the other lines of the window begin.
    const int margin = style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    setContentsMargins(margin, 0, margin, 0);
    connect(&area, &HistoryArea::changed, this, &SumLabel::showSum);
    showSum();
}

void SumLabel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        showSum();
    ElidedLabel::changeEvent(event);
}

void SumLabel::showSum()
{
    setText(sumText(m_area.sum()));
}

} // namespace refdialer
