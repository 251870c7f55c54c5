// SPDX-License-Identifier: MIT
#include "MessageBox.h"

#include "Change.h"

namespace refdialer
{

MessageBox::MessageBox(Icon icon, const QString &title, const QString &text, QWidget *parent)
    : QMessageBox(icon, title, text, NoButton, parent)
{
    setTextFormat(Qt::PlainText);
    addButton(Change::tr(QStringLiteral("IDS_OK"), QStringLiteral("Host")), AcceptRole);
}

} // namespace refdialer
