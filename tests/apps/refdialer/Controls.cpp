// SPDX-License-Identifier: MIT
#include "Controls.h"

#include <QAccessible>

namespace
{

QString nameOf(QWidget &widget)
{
    QAccessibleInterface *const interface = QAccessible::queryAccessibleInterface(&widget);
    return interface ? interface->text(QAccessible::Name) : QString();
}

} // namespace

QList<QWidget *> controlsIn(const QWidget &window)
{
    QList<QWidget *> controls;
    for (QWidget *const widget : window.findChildren<QWidget *>()) {
        if ((widget->focusPolicy() & Qt::TabFocus) && !widget->objectName().startsWith("qt_") &&
            !widget->focusProxy() && widget->window() == &window)
            controls.append(widget);
    }
    return controls;
}

QString descriptionOf(const QWidget &control)
{
    return QString("%1 \"%2\"").arg(control.metaObject()->className(), control.objectName());
}

QStringList namelessControlsIn(const QWidget &window)
{
    QStringList nameless;
    for (QWidget *const control : controlsIn(window)) {
        if (nameOf(*control).trimmed().isEmpty())
            nameless.append(descriptionOf(*control) + " has no name");
    }
    return nameless;
}
