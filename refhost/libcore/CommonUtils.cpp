// SPDX-License-Identifier: MIT
#include "CommonUtils.h"

#include "ConfirmationBox.h"
#include "HostState.h"
#include "Settings.h"

#include <QPointer>
#include <QScreen>

#include <algorithm>

namespace
{

/// The nearest position to `wanted` at which `size` lies inside `bounds`; what
/// is larger than the bounds shows its top left corner.
QPoint keptInside(const QRect &bounds, QPoint wanted, const QSize &size)
{
    const auto within = [](int value, int low, int high) {
        return std::max(low, std::min(value, high));
    };
    return {within(wanted.x(), bounds.left(), bounds.right() - size.width() + 1),
            within(wanted.y(), bounds.top(), bounds.bottom() - size.height() + 1)};
}

} // namespace

// What the booleans and the extra text mean is the host's to say: this host
// shows the extra text below the message and needs neither of the booleans.
int CommonUtils::ShowMessage(QMessageBox::Icon icon, QWidget *parent, QString title, QString text,
                             QString button1, QString button2, QString button3, bool /*flag1*/,
                             QFlags<Qt::WindowType> windowFlags, QDialog **dialog,
                             QString extraText, bool /*flag2*/)
{
    // The parent may be destroyed while the box is open, and the box with it.
    const QPointer<refhost::ConfirmationBox> box(
        new refhost::ConfirmationBox(icon, title, text, parent, windowFlags));
    box->setButtons(button1, button2, button3);
    box->setInformativeText(extraText);
    if (dialog)
        *dialog = box;
    ++refhost::hostState().openQuestions;
    box->exec();
    --refhost::hostState().openQuestions;
    if (dialog)
        *dialog = nullptr;
    const bool isConfirmed = box && box->isConfirmed();
    delete box;
    if (isConfirmed && refhost::hostState().confirmationHandler)
        refhost::hostState().confirmationHandler();
    return isConfirmed ? QMessageBox::Ok : QMessageBox::Cancel;
}

QString CommonUtils::GetSettings(QString group, QString key)
{
    const auto temporary = refhost::hostState().temporarySettings.constFind({group, key});
    if (temporary != refhost::hostState().temporarySettings.constEnd())
        return *temporary;
    return refhost::Settings(group).value(key).toString();
}

QWidget *CommonUtils::GetMainWindow()
{
    return refhost::hostState().mainWindow;
}

void CommonUtils::MoveCentre(QDialog *dialog)
{
    if (!dialog)
        return;
    if (!dialog->testAttribute(Qt::WA_Resized))
        dialog->adjustSize();
    const QWidget *const window = GetMainWindow();
    const bool isOverWindow = window && window->isVisible() && !window->isMinimized();
    const QRect screen = (isOverWindow ? window : dialog)->screen()->availableGeometry();
    QRect frame = dialog->frameGeometry();
    frame.moveCenter((isOverWindow ? window->frameGeometry() : screen).center());
    dialog->move(keptInside(screen, frame.topLeft(), frame.size()));
}
