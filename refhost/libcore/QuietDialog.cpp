// SPDX-License-Identifier: MIT
#include "QuietDialog.h"

#include <QEvent>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

namespace refhost
{

QuietDialog::QuietDialog(QDialog *dialog)
    : QObject(dialog)
    , m_dialog(dialog)
{
    dialog->setAttribute(Qt::WA_ShowWithoutActivating);
    dialog->installEventFilter(this);
}

bool QuietDialog::eventFilter(QObject *watched, QEvent *event)
{
    // Comes when there is a native window, and before that is shown.
    if (event->type() == QEvent::Show && !event->spontaneous()) {
        m_dialog->windowHandle()->setModality(Qt::NonModal);
        m_dialog->removeEventFilter(this);
        // Queued, because a window must not be hidden while it gets the keyboard.
        connect(
            qGuiApp, &QGuiApplication::focusWindowChanged, this,
            [this](const QWindow *focused) {
                if (focused)
                    becomeModal();
            },
            Qt::QueuedConnection);
        // The user may have come back since the dialog was made.
        if (QGuiApplication::focusWindow())
            QTimer::singleShot(0, this, &QuietDialog::becomeModal);
    }
    return QObject::eventFilter(watched, event);
}

void QuietDialog::becomeModal()
{
    m_dialog->setAttribute(Qt::WA_ShowWithoutActivating, false);
    if (m_dialog->isVisible() && m_dialog->isModal()) {
        // Only a window that is just being shown becomes modal.
        m_dialog->hide();
        m_dialog->windowHandle()->setModality(m_dialog->windowModality());
        m_dialog->show();
    }
    delete this;
}

} // namespace refhost
