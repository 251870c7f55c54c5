// SPDX-License-Identifier: MIT
#include "ConfirmationBox.h"

#include "Change.h"

#include <QKeyEvent>
#include <QPushButton>

namespace refhost
{

ConfirmationBox::ConfirmationBox(Icon icon, const QString &title, const QString &text,
                                 QWidget *parent, Qt::WindowFlags flags)
    : QMessageBox(icon, title, text, NoButton, parent, flags | Qt::Dialog)
{
    setTextFormat(Qt::PlainText);
}

void ConfirmationBox::setButtons(const QString &confirming, const QString &rejecting,
                                 const QString &other)
{
    m_confirming = addTranslatedButton(confirming, AcceptRole);
    QPushButton *const harmless = addTranslatedButton(rejecting, RejectRole);
    addTranslatedButton(other, RejectRole);
    setDefaultButton(harmless ? harmless : m_confirming);
}

bool ConfirmationBox::isConfirmed() const
{
    return m_confirming && clickedButton() == m_confirming;
}

void ConfirmationBox::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel))
        reject();
    else
        QMessageBox::keyPressEvent(event);
}

void ConfirmationBox::closeEvent(QCloseEvent *event)
{
    // The base class would press the only button there is, or refuse to close.
    QDialog::closeEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

QPushButton *ConfirmationBox::addTranslatedButton(const QString &id, ButtonRole role)
{
    return id.isEmpty() ? nullptr : addButton(Change::tr(id, QStringLiteral("Host")), role);
}

} // namespace refhost
