// SPDX-License-Identifier: MIT
#pragma once

#include "usage/UsageBars.h"

#include <QCoreApplication>
#include <QLocale>
#include <QString>
#include <QStringList>

namespace refdialer
{

struct UsageFigures;
struct UsageSubject;

/// The words for what was used.
class UsageText
{
    Q_DECLARE_TR_FUNCTIONS(refdialer::UsageText)

public:
    static QString subjectName(const UsageSubject &subject);
    static QString partName(usage::UsagePart part);
    /// "November 2026"
    static QString monthName(const QDate &month, const QLocale &locale);
    static QString monthNameAlone(const QDate &month, const QLocale &locale);
    /// The day or month of the bar.
    static QString barName(const usage::UsageBar &bar, usage::BarUnit unit, const QLocale &locale);
    /// The days or months shown: "November 2026", "2026", "15/11/26 to 14/12/26".
    static QString spanName(const UsageFigures &figures, const QLocale &locale);
    /// What was moved, behind the name of when.
    static QString figuresText(const QString &name, const usage::UsageBar &bar);
    /// The heads of a table of bars: when, each part, the total.
    static QStringList columnNames(usage::BarUnit unit);
};

} // namespace refdialer
