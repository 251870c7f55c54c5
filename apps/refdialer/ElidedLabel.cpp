// SPDX-License-Identifier: MIT
#include "ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace refdialer
{

QString toolTipOf(const QString &text)
{
    return QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}

ElidedLabel::ElidedLabel(Qt::TextElideMode mode)
    : m_mode(mode)
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::sizeHint() const
{
    // A text's width in whole pixels may be less than it takes.
    m_widest = std::max(m_widest, fontMetrics().horizontalAdvance(text()) + 1);
    const QMargins margins = contentsMargins();
    return {m_widest + margins.left() + margins.right(), minimumSizeHint().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, fontMetrics().lineSpacing()};
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && shownText() != text()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), toolTipOf(text()), this);
        return true;
    }
    if (event->type() == QEvent::FontChange)
        m_widest = 0;
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(),
                          int(QStyle::visualAlignment(layoutDirection(), alignment())) |
                              Qt::TextSingleLine,
                          palette(), isEnabled(), shownText(), foregroundRole());
}

QString ElidedLabel::shownText() const
{
    return fontMetrics().elidedText(text(), m_mode, contentsRect().width());
}

} // namespace refdialer
