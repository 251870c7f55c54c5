// SPDX-License-Identifier: MIT
#include "AccumulateTotals.h"
#include "SdkText.h"
#include "TimeText.h"
#include "YearsOfHistory.h"

#include <QTest>

#include <limits>

/// What the plug-in's statistics dialog shows, before it is rounded, against the
/// sums of connrecord.
class AccumulateAgreementTest : public QObject
{
    Q_OBJECT

private slots:
    void agreesToTheByte_data();
    void agreesToTheByte();

private:
    static AccumulateTotals totalsOfTheStore();
    static QStringList linesOf(const QString &profile,
                               const AccumulateTotals::TotalsByMonth &months);
    static QString textOf(AccumulateTotals::Bytes bytes);
};

namespace
{

/// The lines without the number of connections, which the plug-in does not count.
QStringList totalsBy(const QString &grouping)
{
    return YearsOfHistory::totalsTold(
        {"--by-start", "--by", grouping},
        {"profile", "month", "connected_seconds", "uploaded_bytes", "downloaded_bytes"});
}

} // namespace

AccumulateTotals AccumulateAgreementTest::totalsOfTheStore()
{
    AccumulateTotals totals;
    for (const _KORA_ST_CONNRECORD &record : handOut().records)
        totals.add(record, SdkText::bounded(record.szProfileName),
                   TimeText::of(SdkText::seconds(record.szStartTime)));
    return totals;
}

QStringList AccumulateAgreementTest::linesOf(const QString &profile,
                                             const AccumulateTotals::TotalsByMonth &months)
{
    QStringList lines;
    for (auto month = months.cbegin(); month != months.cend(); ++month)
        lines.append(QStringList{profile, month.key().left(4) + '-' + month.key().mid(4),
                                 QString::number(month->seconds), textOf(month->uploaded),
                                 textOf(month->downloaded)}
                         .join('|'));
    return lines;
}

QString AccumulateAgreementTest::textOf(AccumulateTotals::Bytes bytes)
{
    const bool fits = bytes >= 0 && bytes <= std::numeric_limits<qint64>::max();
    return fits ? QString::number(static_cast<qint64>(bytes)) : QStringLiteral("too large");
}

void AccumulateAgreementTest::agreesToTheByte_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<int>("firstYear");
    QTest::newRow("Europe/Berlin") << QByteArray("Europe/Berlin") << 2023;
    QTest::newRow("America/St_Johns") << QByteArray("America/St_Johns") << 2008;
    QTest::newRow("14 hours ahead of UTC") << QByteArray("Pacific/Kiritimati") << 2023;
    QTest::newRow("12 hours behind UTC") << QByteArray("Etc/GMT+12") << 2023;
}

void AccumulateAgreementTest::agreesToTheByte()
{
    QFETCH(QByteArray, zone);
    QFETCH(int, firstYear);
    const YearsOfHistory history(zone.constData(), firstYear);
    const AccumulateTotals::Sums sums = totalsOfTheStore().sums();
    QCOMPARE(linesOf({}, sums.ofAllProfiles), totalsBy("month"));
    QStringList lines;
    for (auto profile = sums.byProfile.cbegin(); profile != sums.byProfile.cend(); ++profile)
        lines += linesOf(profile.key(), *profile);
    QCOMPARE(lines, totalsBy("profile,month"));
    QVERIFY(lines.size() > 36);
}

QTEST_GUILESS_MAIN(AccumulateAgreementTest)

#include "tst_accumulateagreement.moc"
