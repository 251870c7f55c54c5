// SPDX-License-Identifier: MIT
#include "Change.h"

#include <QCoreApplication>

QString Change::tr(const QString &id, const QString &context)
{
    if (id.isEmpty())
        return id;
    const QString text =
        QCoreApplication::translate(context.toUtf8().constData(), id.toUtf8().constData());
    return text.isEmpty() ? id : text;
}
