// SPDX-License-Identifier: MIT
#include "ExtendDialog.h"

#include "QuietDialog.h"

#include <QApplication>
#include <QVBoxLayout>

ExtendDialog::ExtendDialog(QWidget *parent, Qt::WindowFlags flags, enWidgetType /*type*/)
    : QDialog(parent, flags)
{
    // What the user works with is another program, so nobody has asked for this dialog.
    if (!QApplication::activeWindow())
        new refhost::QuietDialog(this);
    auto *const frame = new QVBoxLayout(this);
    frame->setContentsMargins(0, 0, 0, 0);
}

ExtendDialog::~ExtendDialog() = default;

void ExtendDialog::AddMainWidget(QWidget *widget)
{
    // A plug-in may hand over the same content each time it shows the dialog:
    // adding it again leaves it where it is.
    if (widget)
        layout()->addWidget(widget);
}

void ExtendDialog::setWindowTitle(const QString &title)
{
    QDialog::setWindowTitle(title);
}
