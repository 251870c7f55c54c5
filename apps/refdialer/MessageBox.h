// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>

namespace refdialer
{

/// Tells the user something. The text is shown as it is, whatever a path or a reason in it looks
/// like, and the button speaks the program's language, which Qt's own ones may not.
class MessageBox : public QMessageBox
{
public:
    MessageBox(Icon icon, const QString &title, const QString &text, QWidget *parent);
};

} // namespace refdialer
