// SPDX-License-Identifier: MIT
#include "ClosingChoice.h"

#include "apps/common/RecordingChoices.h"
#include "refhost/libcore/Host.h"

#include "CommonUtils.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace refdialer
{

namespace
{

const char *const closingKey = "whenClosing";
const char *const inBackground = "background";
const char *const stopping = "stop";

/// The question's texts, in the language of the program.
class ClosingQuestion
{
    Q_DECLARE_TR_FUNCTIONS(refdialer::ClosingQuestion)

public:
    explicit ClosingQuestion(QWidget *window);

    ClosingChoice ask();

private:
    QMessageBox m_box;
    QCheckBox *m_remember;
    QPushButton *m_background;
    QPushButton *m_stop;
};

ClosingQuestion::ClosingQuestion(QWidget *window)
    : m_box(QMessageBox::Question, window->windowTitle(),
            tr("A connection lasts, and this window records it."), QMessageBox::NoButton, window)
    , m_remember(new QCheckBox(tr("&Do not ask again")))
    , m_background(m_box.addButton(tr("Record in the &background"), QMessageBox::AcceptRole))
    , m_stop(m_box.addButton(tr("&Stop recording"), QMessageBox::DestructiveRole))
{
    QPushButton *const cancel = m_box.addButton(tr("&Cancel"), QMessageBox::RejectRole);
    m_box.setInformativeText(tr("A service can go on recording without the window, now and "
                                "whenever you are logged in."));
    m_box.setCheckBox(m_remember);
    m_box.setDefaultButton(m_background);
    m_box.setEscapeButton(cancel);
}

ClosingChoice ClosingQuestion::ask()
{
    m_box.exec();
    const bool isBackground = m_box.clickedButton() == m_background;
    if (!isBackground && m_box.clickedButton() != m_stop)
        return ClosingChoice::StayOpen;
    // Where it cannot be stored, it is only asked again.
    if (m_remember->isChecked())
        refhost::storeSetting(common::settingsGroup, closingKey,
                              isBackground ? inBackground : stopping);
    return isBackground ? ClosingChoice::RecordInBackground : ClosingChoice::StopRecording;
}

} // namespace

ClosingChoice chooseClosing(QWidget *window)
{
    const QString stored = CommonUtils::GetSettings(common::settingsGroup, closingKey);
    if (stored == QLatin1String(inBackground))
        return ClosingChoice::RecordInBackground;
    if (stored == QLatin1String(stopping))
        return ClosingChoice::StopRecording;
    return ClosingQuestion(window).ask();
}

void forgetClosingChoice()
{
    refhost::storeSetting(common::settingsGroup, closingKey, QString());
}

} // namespace refdialer
