// SPDX-License-Identifier: MIT
#include "UsageText.h"

#include "UsageFigures.h"
#include "usage/SizeText.h"

namespace refdialer
{

namespace
{

/// As much of a name as a list has room for.
QString shortened(const std::string &name)
{
    constexpr int longest = 40;
    const QString text = QString::fromStdString(name);
    return text.size() <= longest ? text : text.left(longest) + QChar(0x2026);
}

} // namespace

QString UsageText::subjectName(const UsageSubject &subject)
{
    constexpr int shownDigits = 4;
    switch (subject.kind) {
    case UsageSubject::Kind::Everything:
        break;
    case UsageSubject::Kind::Plan:
        return tr("Plan: %1").arg(shortened(subject.name));
    case UsageSubject::Kind::Profile:
        return tr("Profile: %1").arg(shortened(subject.name));
    case UsageSubject::Kind::Sim:
        return tr("SIM ending in %1").arg(QString::fromStdString(subject.name).right(shownDigits));
    }
    return tr("All connections");
}

QString UsageText::partName(usage::UsagePart part)
{
    switch (part) {
    case usage::ReceivedAtHome:
        return tr("Received at home");
    case usage::SentAtHome:
        return tr("Sent at home");
    case usage::ReceivedRoaming:
        return tr("Received roaming");
    case usage::SentRoaming:
        return tr("Sent roaming");
    }
    return {};
}

QString UsageText::monthName(const QDate &month, const QLocale &locale)
{
    //: a month and its year
    return tr("%1 %2").arg(monthNameAlone(month, locale), QString::number(month.year()));
}

/// Where dates have the number of the month, only its short name has that too.
QString UsageText::monthNameAlone(const QDate &month, const QLocale &locale)
{
    const bool isNumber = !locale.dateFormat(QLocale::LongFormat).contains(QLatin1String("MMM"));
    return locale.standaloneMonthName(month.month(),
                                      isNumber ? QLocale::ShortFormat : QLocale::LongFormat);
}

QString UsageText::barName(const usage::UsageBar &bar, usage::BarUnit unit, const QLocale &locale)
{
    return unit == usage::BarUnit::Day ? locale.toString(bar.first, QLocale::LongFormat)
                                       : monthName(bar.first, locale);
}

QString UsageText::spanName(const UsageFigures &figures, const QLocale &locale)
{
    const QDate first = figures.span.first;
    if (figures.unit == usage::BarUnit::Month)
        return QString::number(first.year());
    if (first.day() == 1 && figures.span.end == first.addMonths(1))
        return monthName(first, locale);
    return tr("%1 to %2")
        .arg(locale.toString(first, QLocale::ShortFormat),
             locale.toString(figures.span.last(), QLocale::ShortFormat));
}

QString UsageText::figuresText(const QString &name, const usage::UsageBar &bar)
{
    const auto size = [&bar](usage::UsagePart part) {
        return usage::sizeText(bar.bytes[std::size_t(part)]);
    };
    if (bar.total() == 0)
        return tr("%1: nothing").arg(name);
    if (!bar.hasRoaming())
        return tr("%1: received %2, sent %3")
            .arg(name, size(usage::ReceivedAtHome), size(usage::SentAtHome));
    return tr("%1: received %2 at home and %3 roaming, sent %4 at home and %5 roaming")
        .arg(name, size(usage::ReceivedAtHome), size(usage::ReceivedRoaming),
             size(usage::SentAtHome), size(usage::SentRoaming));
}

QStringList UsageText::columnNames(usage::BarUnit unit)
{
    QStringList names{unit == usage::BarUnit::Day ? tr("Day") : tr("Month")};
    for (int part = 0; part < usage::usagePartCount; ++part)
        names.append(partName(usage::UsagePart(part)));
    names.append(tr("Total"));
    return names;
}

} // namespace refdialer
