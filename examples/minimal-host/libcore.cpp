// SPDX-License-Identifier: MIT
// A host's libcore at its smallest: the host's texts, settings, message boxes and
// dialog frame. Put your own in the place of each.
#include "Change.h"
#include "CommonUtils.h"
#include "ExtendDialog.h"
#include "Startup.h"

#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>

// The plug-in asks for every text by its identifier; your translations come here.
QString Change::tr(const QString &id, const QString & /*context*/)
{
    return id;
}

// The plug-in passes these texts by value.
// NOLINTBEGIN(performance-unnecessary-value-param)
int CommonUtils::ShowMessage(QMessageBox::Icon icon, QWidget *parent, QString title, QString text,
                             QString button1, QString button2, QString button3, bool /*flag1*/,
                             QFlags<Qt::WindowType> windowFlags, QDialog **dialog,
                             QString /*extraText*/, bool /*flag2*/)
{
    QMessageBox box(icon, title, text, QMessageBox::NoButton, parent, windowFlags);
    const QPushButton *const confirm =
        box.addButton(Change::tr(button1, QString()), QMessageBox::AcceptRole);
    for (const QString &button : {button2, button3}) {
        if (!button.isEmpty())
            box.addButton(Change::tr(button, QString()), QMessageBox::RejectRole);
    }
    if (dialog)
        *dialog = &box;
    box.exec();
    if (dialog)
        *dialog = nullptr;
    return box.clickedButton() == confirm ? QMessageBox::Ok : QMessageBox::Cancel;
}

// An empty text is a setting that is not set.
QString CommonUtils::GetSettings(QString /*group*/, QString /*key*/)
{
    return {};
}

// NOLINTEND(performance-unnecessary-value-param)

QWidget *CommonUtils::GetMainWindow()
{
    return QApplication::topLevelWidgets().value(0);
}

void CommonUtils::MoveCentre(QDialog *dialog)
{
    if (const QWidget *const window = GetMainWindow())
        dialog->move(window->geometry().center() - dialog->rect().center());
}

// Without a container there are no other plug-ins, and no summary after a connection.
IPluginContainer *Startup::GetPluginContainer()
{
    return nullptr;
}

ExtendDialog::ExtendDialog(QWidget *parent, Qt::WindowFlags flags, enWidgetType /*type*/)
    : QDialog(parent, flags)
{
}

ExtendDialog::~ExtendDialog() = default;

void ExtendDialog::AddMainWidget(QWidget *widget)
{
    // The statistics come back into the same frame each time that they are shown.
    if (!layout())
        new QVBoxLayout(this);
    layout()->addWidget(widget);
}

void ExtendDialog::setWindowTitle(const QString &title)
{
    QDialog::setWindowTitle(title);
}
