// SPDX-License-Identifier: MIT
#include "DayFormat.h"

#include <QDateEdit>
#include <QLocale>

namespace refdialer
{

void showAsInRegion(QDateEdit &edit)
{
    QString format = edit.locale().dateFormat(QLocale::ShortFormat);
    // Two digits of a year would be any century's.
    if (!format.contains(QLatin1String("yyyy")))
        format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    edit.setDisplayFormat(format);
}

} // namespace refdialer
