// SPDX-License-Identifier: MIT
#include "HistoryNotice.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace refdialer
{

HistoryNotice::HistoryNotice(QWidget *parent)
    : QWidget(parent)
    , m_label(new QLabel)
    , m_importButton(new QPushButton)
    , m_backgroundButton(new QPushButton)
    , m_allButton(new QPushButton)
{
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    auto *const buttons = new QHBoxLayout;
    for (QPushButton *const button : {m_importButton, m_backgroundButton, m_allButton})
        buttons->addWidget(button);
    buttons->addStretch();
    auto *const layout = new QVBoxLayout(this);
    const int margin = style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    layout->setContentsMargins(margin, margin, margin, 0);
    layout->addWidget(m_label);
    layout->addLayout(buttons);
    connect(m_importButton, &QPushButton::clicked, this, &HistoryNotice::importWanted);
    connect(m_backgroundButton, &QPushButton::clicked, this, &HistoryNotice::backgroundWanted);
    connect(m_allButton, &QPushButton::clicked, this, &HistoryNotice::allWanted);
    setReason(Reason::None);
}

void HistoryNotice::setReason(Reason reason)
{
    m_reason = reason;
    showButtons();
    retranslate();
    setVisible(reason != Reason::None);
}

void HistoryNotice::offerBackground(bool isOffered)
{
    m_isBackgroundOffered = isOffered;
    showButtons();
}

void HistoryNotice::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void HistoryNotice::showButtons()
{
    m_importButton->setVisible(m_reason == Reason::NoConnections);
    m_backgroundButton->setVisible(m_reason == Reason::NoConnections && m_isBackgroundOffered);
    m_allButton->setVisible(m_reason == Reason::NothingFound);
}

QString HistoryNotice::text() const
{
    switch (m_reason) {
    case Reason::NoConnections:
        return tr("There are no connections yet. A mobile connection appears here when it has "
                  "ended, with what it has sent and received. What you have from elsewhere can "
                  "be imported.");
    case Reason::NothingFound:
        return tr("No connection matches the search.");
    case Reason::AllTooShort:
        return tr("All connections are shorter than the shortest one that the settings let this "
                  "window list.");
    default:
        return {};
    }
}

void HistoryNotice::retranslate()
{
    m_label->setText(text());
    m_importButton->setText(tr("&Import…"));
    m_backgroundButton->setText(tr("&Record in the background"));
    m_allButton->setText(tr("Show &all connections"));
}

} // namespace refdialer
