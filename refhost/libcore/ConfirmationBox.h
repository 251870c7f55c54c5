// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>
#include <QStringList>

namespace refhost
{

/// A message box whose first button confirms. Closing it or pressing Escape is
/// never a confirmation, not even when there is no other button.
class ConfirmationBox : public QMessageBox
{
public:
    /// Title and text are shown as they are, without any markup.
    ConfirmationBox(Icon icon, const QString &title, const QString &text, QWidget *parent,
                    Qt::WindowFlags flags);

    /// The buttons by their string identifiers; an empty one is no button. The
    /// harmless second button, if there is one, is what Enter presses.
    void setButtons(const QString &confirming, const QString &rejecting, const QString &other);
    bool isConfirmed() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    QPushButton *addTranslatedButton(const QString &id, ButtonRole role);

    QPushButton *m_confirming = nullptr;
};

} // namespace refhost
