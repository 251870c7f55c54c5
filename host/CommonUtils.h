// SPDX-License-Identifier: MIT
#pragma once

#include "HostApi.h"

#include <QMessageBox>
#include <QString>

class QDialog;
class QWidget;

/// The host's message boxes, settings and windows (library libcore).
class HOST_API CommonUtils
{
public:
    /// Shows a modal message box over `parent` and returns 1024 (Qt's
    /// Ok value) when the user confirms with the first button, anything else
    /// otherwise. `title` and `text` are shown as they are; the buttons are
    /// string identifiers that the host translates, an empty one is no button.
    /// `dialog`, if not null, receives the box while it is open. The meaning of
    /// the two booleans and of `extraText` is the host's.
    static int ShowMessage(QMessageBox::Icon icon, QWidget *parent, QString title, QString text,
                           QString button1, QString button2, QString button3, bool flag1,
                           QFlags<Qt::WindowType> windowFlags, QDialog **dialog, QString extraText,
                           bool flag2);
    /// The stored setting as text, empty if it is not set.
    static QString GetSettings(QString group, QString key);
    /// The host's main window, or null while there is none.
    static QWidget *GetMainWindow();
    /// Centres the dialog over the host's main window, else over the screen.
    static void MoveCentre(QDialog *dialog);
};
