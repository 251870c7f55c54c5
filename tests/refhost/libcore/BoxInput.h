// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>

/// The message box that waits for an answer, or null.
QMessageBox *openBox();

QAbstractButton *buttonNamed(const QMessageBox &box, const QString &text);
void clickOn(QMessageBox &box, const QString &button);

/// Presses the keys as the window system does: whoever has the focus gets them.
void pressKeys(QMessageBox &box, const QList<Qt::Key> &keys);
