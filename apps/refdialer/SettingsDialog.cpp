// SPDX-License-Identifier: MIT
#include "SettingsDialog.h"

#include "LanguageChoice.h"
#include "SummaryChoice.h"
#include "refhost/libcore/Host.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

namespace refdialer
{

SettingsDialog::SettingsDialog(QWidget *parent)
    : QDialog(parent)
    , m_summaryBox(new QCheckBox)
    , m_languageLabel(new QLabel)
    , m_languageBox(new QComboBox)
    , m_problem(new QLabel)
    , m_buttons(new QDialogButtonBox)
    , m_closeButton(m_buttons->addButton(QString(), QDialogButtonBox::RejectRole))
{
    m_summaryBox->setChecked(isSummaryWanted());
    addLanguages();
    m_languageLabel->setBuddy(m_languageBox);
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    m_problem->hide();

    auto *const layout = new QFormLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addRow(m_summaryBox);
    layout->addRow(m_languageLabel, m_languageBox);
    layout->addRow(m_problem);
    layout->addRow(m_buttons);
    retranslate();

    connect(m_summaryBox, &QCheckBox::toggled, this,
            [this](bool isWanted) { tellUnlessStored(storeSummaryChoice(isWanted)); });
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
    for (const QString &code : refhost::availableLanguages())
        m_languageBox->addItem(refhost::languageName(code), code);
    m_languageBox->setCurrentIndex(m_languageBox->findData(refhost::language()));
}

void SettingsDialog::retranslate()
{
    setWindowTitle(tr("Settings"));
    m_summaryBox->setText(tr("&Show a summary after each connection"));
    m_languageLabel->setText(tr("&Language:"));
    m_closeButton->setText(tr("&Close"));
}

void SettingsDialog::chooseLanguage(int index)
{
    const QString chosen = m_languageBox->itemData(index).toString();
    // The present one too: it may have been asked for on the command line only.
    tellUnlessStored(storeLanguage(chosen));
    if (chosen != refhost::language() && refhost::setLanguage(chosen))
        emit languageChosen(chosen);
}

void SettingsDialog::tellUnlessStored(bool isStored)
{
    m_problem->setText(tr("This lasts until the window closes only: the settings cannot be written "
                          "to %1. Make room there, or allow yourself to write to it.")
                           .arg(refhost::settingsFile()));
    m_problem->setVisible(!isStored);
}

} // namespace refdialer
