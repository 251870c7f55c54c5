// SPDX-License-Identifier: MIT
#include "PlanOffer.h"

#include "ElidedLabel.h"
#include "apps/common/RecordingChoices.h"
#include "refhost/libcore/Host.h"

#include "CommonUtils.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>

namespace refdialer
{

namespace
{

const char *const offerKey = "offerPlan";
const char *const unwelcome = "false";

} // namespace

PlanOffer::PlanOffer(QWidget *parent)
    : QWidget(parent)
    , m_isWelcome(CommonUtils::GetSettings(common::settingsGroup, offerKey) !=
                  QLatin1String(unwelcome))
    , m_text(new ElidedLabel(Qt::ElideRight))
    , m_accept(new QPushButton)
    , m_decline(new QPushButton)
{
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_accept);
    layout->addWidget(m_decline);
    connect(m_accept, &QPushButton::clicked, this, &PlanOffer::accepted);
    connect(m_decline, &QPushButton::clicked, this, &PlanOffer::decline);
    retranslate();
}

void PlanOffer::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void PlanOffer::retranslate()
{
    m_text->setText(tr("See here how much of a data plan is left."));
    m_accept->setText(tr("Set up a data plan…"));
    m_decline->setText(tr("Do not offer"));
}

/// Where that cannot be stored, it is only offered again another time.
void PlanOffer::decline()
{
    m_isWelcome = false;
    refhost::storeSetting(common::settingsGroup, offerKey, unwelcome);
    emit declined();
}

} // namespace refdialer
