// SPDX-License-Identifier: MIT
#include "PeriodRow.h"

#include "ElidedLabel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>

namespace refdialer
{

PeriodRow::PeriodRow(QWidget *parent)
    : QWidget(parent)
    , m_previousButton(new QPushButton)
    , m_name(new ElidedLabel(Qt::ElideRight))
    , m_nextButton(new QPushButton)
{
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_previousButton);
    layout->addWidget(m_name, 1);
    layout->addWidget(m_nextButton);
    m_name->setAlignment(Qt::AlignCenter);
    m_name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    connect(m_previousButton, &QPushButton::clicked, this, &PeriodRow::previousWanted);
    connect(m_nextButton, &QPushButton::clicked, this, &PeriodRow::nextWanted);
    // Where reading goes from right to left, what was before stands on the right.
    addKey("Alt+Left", m_previousButton, m_nextButton);
    addKey("Alt+Right", m_nextButton, m_previousButton);
    showPeriod({}, false, false);
    retranslate();
}

void PeriodRow::showPeriod(const QString &name, bool hasPrevious, bool hasNext)
{
    m_name->setText(name);
    m_previousButton->setEnabled(hasPrevious);
    m_nextButton->setEnabled(hasNext);
}

QString PeriodRow::name() const
{
    return m_name->text();
}

void PeriodRow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void PeriodRow::addKey(const char *key, QPushButton *fromLeft, QPushButton *fromRight)
{
    auto *const shortcut = new QShortcut(QKeySequence(QLatin1String(key)), parentWidget());
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, [this, fromLeft, fromRight] {
        (layoutDirection() == Qt::RightToLeft ? fromRight : fromLeft)->click();
    });
}

void PeriodRow::retranslate()
{
    m_previousButton->setText(tr("P&revious"));
    m_nextButton->setText(tr("&Next"));
}

} // namespace refdialer
