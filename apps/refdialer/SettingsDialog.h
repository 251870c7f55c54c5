// SPDX-License-Identifier: MIT
#pragma once

#include "BackgroundUnit.h"

#include <QDialog>

#include <optional>

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QLabel;
class QPushButton;
class QSpinBox;

namespace refdialer
{

class RecordingSettings;

/// The settings. Each takes effect and is stored as soon as it is changed.
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    /// `background` may be null; that one cannot be chosen then. It must live longer.
    explicit SettingsDialog(BackgroundUnit *background, QWidget *parent = nullptr);

signals:
    void languageChosen(const QString &language);
    void interfacesChosen(const QStringList &names);
    void shortestChosen(int seconds);

protected:
    void changeEvent(QEvent *event) override;

private:
    void addRows();
    void connectControls();
    void addLanguages();
    void offerBackground();
    void chooseBackground(bool isWanted);
    void tellOutcome(BackgroundUnit::Outcome outcome, const QString &reason);
    QString backgroundText() const;
    void retranslate();
    void tellWhetherReviewed();
    void chooseLanguage(int index);
    void chooseShortest(int seconds);
    void tellUnlessStored(bool isStored);

    /// What became of the last choice.
    struct Answer {
        BackgroundUnit::Outcome outcome;
        QString reason;
    };

    BackgroundUnit *const m_background;
    std::optional<Answer> m_answer;
    bool m_isBackgroundOrdered = false; ///< and not answered yet
    QCheckBox *m_summaryBox;
    QCheckBox *m_backgroundBox;
    QLabel *m_backgroundLabel; ///< shown only when there is something to say
    RecordingSettings *m_recording;
    QLabel *m_shortestLabel;
    QSpinBox *m_shortestBox;
    QLabel *m_languageLabel;
    QComboBox *m_languageBox;
    QLabel *m_reviewLabel; ///< shown only for texts that nobody has reviewed
    QLabel *m_problem;     ///< shown only when a setting cannot be stored
    QDialogButtonBox *m_buttons;
    QPushButton *m_closeButton; ///< not Qt's own, whose text comes in its languages only
};

} // namespace refdialer
