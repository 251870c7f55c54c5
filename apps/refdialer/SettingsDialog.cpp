// SPDX-License-Identifier: MIT
#include "SettingsDialog.h"

#include "LanguageChoice.h"
#include "ListChoice.h"
#include "RecordingSettings.h"
#include "SummaryChoice.h"
#include "refhost/libcore/Host.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include <utility>

namespace refdialer
{

SettingsDialog::SettingsDialog(BackgroundUnit *background, QWidget *parent)
    : QDialog(parent)
    , m_background(background)
    , m_summaryBox(new QCheckBox)
    , m_backgroundBox(new QCheckBox)
    , m_backgroundLabel(new QLabel)
    , m_recording(new RecordingSettings)
    , m_shortestLabel(new QLabel)
    , m_shortestBox(new QSpinBox)
    , m_languageLabel(new QLabel)
    , m_languageBox(new QComboBox)
    , m_reviewLabel(new QLabel)
    , m_problem(new QLabel)
    , m_buttons(new QDialogButtonBox)
    , m_closeButton(m_buttons->addButton(QString(), QDialogButtonBox::RejectRole))
{
    m_summaryBox->setChecked(isSummaryWanted());
    addLanguages();
    m_shortestLabel->setBuddy(m_shortestBox);
    m_shortestBox->setRange(0, longestShortest);
    m_shortestBox->setValue(shortestListed());
    m_languageLabel->setBuddy(m_languageBox);
    for (QLabel *const label : {m_backgroundLabel, m_reviewLabel, m_problem}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    m_problem->hide();
    // Enter ends the input of a name, not the dialog.
    m_closeButton->setAutoDefault(false);
    addRows();
    offerBackground();
    retranslate();
    connectControls();
}

void SettingsDialog::addRows()
{
    auto *const layout = new QFormLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addRow(m_summaryBox);
    layout->addRow(m_backgroundBox);
    layout->addRow(m_backgroundLabel);
    layout->addRow(m_recording);
    layout->addRow(m_shortestLabel, m_shortestBox);
    layout->addRow(m_languageLabel, m_languageBox);
    layout->addRow(m_reviewLabel);
    layout->addRow(m_problem);
    layout->addRow(m_buttons);
}

void SettingsDialog::connectControls()
{
    connect(m_summaryBox, &QCheckBox::toggled, this,
            [this](bool isWanted) { tellUnlessStored(storeSummaryChoice(isWanted)); });
    connect(m_recording, &RecordingSettings::stored, this, &SettingsDialog::tellUnlessStored);
    connect(m_recording, &RecordingSettings::interfacesChosen, this,
            &SettingsDialog::interfacesChosen);
    connect(this, &QDialog::finished, m_recording, &RecordingSettings::chooseInterfaces);
    connect(m_shortestBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &SettingsDialog::chooseShortest);
    connect(m_languageBox, QOverload<int>::of(&QComboBox::activated), this,
            &SettingsDialog::chooseLanguage);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void SettingsDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void SettingsDialog::addLanguages()
{
    m_languageBox->addItem(QString(), QString());
    for (const QString &code : refhost::availableLanguages())
        m_languageBox->addItem(refhost::languageName(code), code);
    const bool isSystems = isSystemLanguageChosen() && refhost::language() == systemLanguage();
    m_languageBox->setCurrentIndex(
        m_languageBox->findData(isSystems ? QString() : refhost::language()));
}

void SettingsDialog::offerBackground()
{
    m_backgroundBox->setEnabled(m_background != nullptr);
    if (!m_background)
        return;
    connect(m_background, &BackgroundUnit::found, m_backgroundBox, &QCheckBox::setChecked);
    connect(m_background, &BackgroundUnit::done, this, &SettingsDialog::tellOutcome);
    connect(m_backgroundBox, &QCheckBox::clicked, this, &SettingsDialog::chooseBackground);
    m_background->look();
}

/// One order at a time. The box is not disabled meanwhile: it would lose the keyboard.
void SettingsDialog::chooseBackground(bool isWanted)
{
    if (std::exchange(m_isBackgroundOrdered, true)) {
        m_backgroundBox->setChecked(!isWanted);
        return;
    }
    if (isWanted)
        m_background->turnOn();
    else
        m_background->turnOff();
}

/// The box shows what is so, not what was wanted.
void SettingsDialog::tellOutcome(BackgroundUnit::Outcome outcome, const QString &reason)
{
    m_answer = Answer{outcome, reason};
    m_isBackgroundOrdered = false;
    m_background->look();
    retranslate();
}

QString SettingsDialog::backgroundText() const
{
    if (!m_background)
        return tr("The service records into your own history, not into the one that this window "
                  "shows.");
    return m_answer ? BackgroundUnit::textFor(m_answer->outcome, m_answer->reason) : QString();
}

void SettingsDialog::retranslate()
{
    setWindowTitle(tr("Settings"));
    m_summaryBox->setText(tr("&Show a summary after each connection"));
    m_backgroundBox->setText(tr("&Record in the background, also when this window is closed"));
    m_backgroundLabel->setText(backgroundText());
    m_backgroundLabel->setVisible(!m_backgroundLabel->text().isEmpty());
    m_shortestLabel->setText(tr("Shortest connection lis&ted:"));
    m_shortestBox->setSuffix(tr(" s"));
    m_shortestBox->setSpecialValueText(tr("any"));
    m_languageLabel->setText(tr("&Language:"));
    m_languageBox->setItemText(
        0, tr("The system's (%1)").arg(refhost::languageName(systemLanguage())));
    m_closeButton->setText(tr("&Close"));
    tellWhetherReviewed();
}

void SettingsDialog::tellWhetherReviewed()
{
    m_reviewLabel->setText(
        tr("These texts have not been reviewed by speakers of the language yet."));
    m_reviewLabel->setVisible(!refhost::isLanguageReviewed(refhost::language()));
}

void SettingsDialog::chooseLanguage(int index)
{
    const QString stored = m_languageBox->itemData(index).toString();
    // The present one too: it may have been asked for on the command line only.
    tellUnlessStored(storeLanguage(stored));
    const QString chosen = stored.isEmpty() ? systemLanguage() : stored;
    if (chosen != refhost::language() && refhost::setLanguage(chosen))
        emit languageChosen(chosen);
}

void SettingsDialog::chooseShortest(int seconds)
{
    tellUnlessStored(storeShortestListed(seconds));
    emit shortestChosen(seconds);
}

void SettingsDialog::tellUnlessStored(bool isStored)
{
    m_problem->setText(tr("This lasts until the window closes only: the settings cannot be written "
                          "to %1. Make room there, or allow yourself to write to it.")
                           .arg(refhost::settingsFile()));
    m_problem->setVisible(!isStored);
}

} // namespace refdialer
