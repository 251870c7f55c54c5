// SPDX-License-Identifier: MIT
#include "AccumulateTotals.h"

#include "KoraStatistics.h"
#include "SdkText.h"

#include <QDate>
#include <QLocale>

#include <limits>

namespace
{

constexpr int monthLength = 6; // of "yyyyMM"

QString monthKey(const QDate &day)
{
    return QLocale::c().toString(day, QLatin1String("yyyyMM"));
}

} // namespace

void AccumulateTotals::Totals::add(const Totals &other)
{
    uploaded += other.uploaded;
    downloaded += other.downloaded;
    seconds += other.seconds;
}

void AccumulateTotals::add(const _KORA_ST_CONNRECORD &record, const QString &profile,
                           const QString &start)
{
    m_connections.emplace_back(Connection{profile, start, totalsOf(record)});
}

void AccumulateTotals::remove(int position)
{
    if (position >= 0 && static_cast<std::size_t>(position) < m_connections.size())
        m_connections[static_cast<std::size_t>(position)].reset();
}

AccumulateTotals::Totals AccumulateTotals::totalsOf(const _KORA_ST_CONNRECORD &record)
{
    Totals totals;
    totals.uploaded = bytesOf(record.szUploadBytes);
    totals.downloaded = bytesOf(record.szDownloadBytes);
    totals.seconds = SdkText::integer(record.szDuration);
    return totals;
}

/// Whole numbers exactly; other texts as the history reads them, cut to bytes,
/// and what is no number or past all counters as 0.
AccumulateTotals::Bytes AccumulateTotals::bytesOf(const char (&field)[64])
{
    if (const auto plain = SdkText::plainNumber(field))
        return *plain;
    const QString text = SdkText::bounded(field);
    bool isWhole = false;
    const qlonglong whole = text.toLongLong(&isWhole);
    if (isWhole)
        return whole;
    const qulonglong large = text.toULongLong(&isWhole);
    if (isWhole)
        return large;
    const double number = text.toDouble();
    const auto limit = static_cast<double>(std::numeric_limits<quint64>::max());
    return number > -limit && number < limit ? static_cast<Bytes>(number) : 0;
}

/// Bytes in units of 1048576 with two decimals, ties to even as printf does.
QString AccumulateTotals::megabytes(Bytes bytes)
{
    const Bytes unit = 1048576;
    const Bytes size = bytes < 0 ? -bytes : bytes;
    Bytes hundredths = size * 100 / unit;
    const Bytes rest = size * 100 % unit;
    if (rest * 2 > unit || (rest * 2 == unit && hundredths % 2 != 0))
        ++hundredths;
    // A sum of less than 2^31 counts stays within 64 bits once it is megabytes.
    return QString::asprintf("%s%llu.%02d", bytes < 0 ? "-" : "",
                             static_cast<unsigned long long>(hundredths / 100),
                             static_cast<int>(hundredths % 100));
}

AccumulateDialogRecord AccumulateTotals::row(const QString &name, const QString &month,
                                             const TotalsByMonth &totals, const QDate &today)
{
    const QDate firstOfMonth(today.year(), today.month(), 1);
    const Totals thisMonth = totals.value(monthKey(firstOfMonth));
    const Totals lastMonth = totals.value(monthKey(firstOfMonth.addMonths(-1)));
    const Totals monthBeforeLast = totals.value(monthKey(firstOfMonth.addMonths(-2)));
    AccumulateDialogRecord result;
    result.profileName = name;
    result.downloadedThisMonth = megabytes(thisMonth.downloaded);
    result.downloadedLastMonth = megabytes(lastMonth.downloaded);
    result.downloadedMonthBeforeLast = megabytes(monthBeforeLast.downloaded);
    result.uploadedThisMonth = megabytes(thisMonth.uploaded);
    result.uploadedLastMonth = megabytes(lastMonth.uploaded);
    result.uploadedMonthBeforeLast = megabytes(monthBeforeLast.uploaded);
    result.secondsThisMonth = QString::number(thisMonth.seconds);
    result.secondsLastMonth = QString::number(lastMonth.seconds);
    result.secondsMonthBeforeLast = QString::number(monthBeforeLast.seconds);
    result.periodStamp = month + QLatin1String("01000000");
    return result;
}

AccumulateTotals::Sums AccumulateTotals::sums() const
{
    Sums sums;
    for (const auto &connection : m_connections) {
        if (!connection)
            continue;
        const QString month = connection->start.left(monthLength);
        sums.ofAllProfiles[month].add(connection->totals);
        sums.byProfile[connection->profile][month].add(connection->totals);
    }
    return sums;
}

QVector<AccumulateDialogRecord> AccumulateTotals::rows(const QDate &today) const
{
    const auto [ofAllProfiles, byProfile] = sums();
    QVector<AccumulateDialogRecord> result;
    result.append(row(QLatin1String("IDS_COMBO_ALLAPN"), monthKey(today), ofAllProfiles, today));
    for (auto profile = byProfile.cbegin(); profile != byProfile.cend(); ++profile) {
        for (auto month = profile->cbegin(); month != profile->cend(); ++month)
            result.append(row(profile.key(), month.key(), *profile, today));
    }
    return result;
}
