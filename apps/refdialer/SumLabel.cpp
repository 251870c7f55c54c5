// SPDX-License-Identifier: MIT
#include "SumLabel.h"

#include "HistoryArea.h"

#include <QEvent>

namespace refdialer
{

SumLabel::SumLabel(const HistoryArea &area)
    : ElidedLabel(Qt::ElideRight)
    , m_area(area)
{
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
