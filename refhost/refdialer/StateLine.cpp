// SPDX-License-Identifier: MIT
#include "StateLine.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QStyle>

#include <utility>

namespace refhost
{

StateLine::StateLine(HistorySource source, QWidget *parent)
    : QLabel(parent)
    , m_source(std::move(source))
{
    setTextFormat(Qt::PlainText);
    const int margin = style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    setContentsMargins(margin, margin, margin, 0);
    // A long path must not keep the window from becoming narrower.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    showState();
}

void StateLine::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        showState();
    QLabel::changeEvent(event);
}

void StateLine::showState()
{
    setText(stateText());
    setToolTip(text());
}

QString StateLine::stateText() const
{
    if (m_source.isSample)
        return tr("Sample history. Changes are gone when the window closes.");
    const QString file = QDir::toNativeSeparators(m_source.file);
    return QFileInfo::exists(m_source.file) ? tr("History in %1").arg(file)
                                            : tr("No connections recorded yet in %1").arg(file);
}

} // namespace refhost
