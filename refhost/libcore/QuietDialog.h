// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

namespace refhost
{

/// Has a dialog shown without taking the keyboard from another program. Window
/// systems give a modal window the keyboard at once, so it becomes modal only when
/// the user comes back to this program. To be made before the dialog is shown, which
/// owns it.
class QuietDialog : public QObject
{
public:
    explicit QuietDialog(QDialog *dialog);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void becomeModal();

    QDialog *const m_dialog;
};

} // namespace refhost
