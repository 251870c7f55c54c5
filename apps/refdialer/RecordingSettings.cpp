// SPDX-License-Identifier: MIT
#include "RecordingSettings.h"

#include "apps/common/ProblemText.h"
#include "apps/common/RecordingChoices.h"
#include "recorder/InterfaceName.h"
#include "refhost/libcore/Host.h"

#include <QCheckBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace refdialer
{

RecordingSettings::RecordingSettings(QWidget *parent)
    : QWidget(parent)
    , m_interfaces(common::chosenInterfaces())
    , m_warningsBox(new QCheckBox)
    , m_interfacesLabel(new QLabel)
    , m_interfacesEdit(new QLineEdit(m_interfaces.join(QLatin1Char(' '))))
    , m_interfacesNote(new QLabel)
{
    m_warningsBox->setChecked(common::arePlanWarningsWanted());
    m_interfacesLabel->setBuddy(m_interfacesEdit);
    m_interfacesNote->setTextFormat(Qt::PlainText);
    m_interfacesNote->setWordWrap(true);
    auto *const layout = new QFormLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addRow(m_warningsBox);
    layout->addRow(m_interfacesLabel, m_interfacesEdit);
    layout->addRow(m_interfacesNote);
    retranslate();
    connect(m_warningsBox, &QCheckBox::toggled, this, [this](bool areWanted) {
        emit stored(
            refhost::storeSetting(common::settingsGroup, common::planWarningsKey,
                                  areWanted ? QStringLiteral("true") : QStringLiteral("false")));
    });
    connect(m_interfacesEdit, &QLineEdit::editingFinished, this,
            &RecordingSettings::chooseInterfaces);
}

void RecordingSettings::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void RecordingSettings::chooseInterfaces()
{
    const QStringList names = common::namesIn(m_interfacesEdit->text());
    const auto refused = std::find_if_not(names.begin(), names.end(), recorder::canNameAnInterface);
    m_refused = refused == names.end() ? QString() : *refused;
    retranslate();
    if (!m_refused.isEmpty() || names == m_interfaces)
        return;
    m_interfaces = names;
    emit stored(refhost::storeSetting(common::settingsGroup, common::interfacesKey,
                                      names.join(QLatin1Char(' '))));
    emit interfacesChosen(names);
}

void RecordingSettings::retranslate()
{
    m_warningsBox->setText(tr("&Notify me when a data plan reaches one of its warnings"));
    m_interfacesLabel->setText(tr("Also record these &interfaces:"));
    m_interfacesEdit->setPlaceholderText(QStringLiteral("eth0 wlan0"));
    m_interfacesNote->setText(
        m_refused.isEmpty()
            ? tr("Mobile ones are recorded anyway. The recorder in the background takes over a "
                 "change when it starts next.")
            : common::impossibleInterfaceText(m_refused));
}

} // namespace refdialer
