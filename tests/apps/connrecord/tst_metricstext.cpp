// SPDX-License-Identifier: MIT
#include "apps/connrecord/MetricsText.h"

#include <QTest>

#include <limits>

using namespace connrecord;
using history::ConnectionSum;

class MetricsTextTest : public QObject
{
    Q_OBJECT

private slots:
    void addsUpWhatLooksTheSame_data();
    void addsUpWhatLooksTheSame();
    void stopsAtTheLargestNumber();
    void describesFamiliesForReadersOfEachFormat();
};

namespace
{

const MetricsFormat &prometheus = metricsFormats[0];
const MetricsFormat &openMetrics = metricsFormats[1];

ConnectionSum sumOf(const QByteArray &profile, const QByteArray &sim, bool isRoaming,
                    std::int64_t sent)
{
    ConnectionSum sum;
    sum.profile = profile.toStdString();
    sum.sim = sim.toStdString();
    sum.isRoaming = isRoaming;
    sum.uploadedBytes = sent;
    return sum;
}

QList<QByteArray> linesOf(const std::vector<ConnectionSum> &sums, const MetricsFormat &format,
                          const QByteArray &beginning)
{
    Metrics metrics;
    metrics.sums = sums;
    QList<QByteArray> lines;
    for (const QByteArray &line : toText(metrics, format).split('\n')) {
        if (line.startsWith(beginning))
            lines << line.mid(beginning.size());
    }
    return lines;
}

QList<QByteArray> sentBytesOf(const std::vector<ConnectionSum> &sums)
{
    return linesOf(sums, prometheus, "connrecord_sent_bytes_total");
}

} // namespace

/// No reader takes a sample twice.
void MetricsTextTest::addsUpWhatLooksTheSame_data()
{
    QTest::addColumn<QByteArray>("profile");
    QTest::addColumn<QByteArray>("sim");
    QTest::addColumn<bool>("isRoaming");
    QTest::addColumn<QList<QByteArray>>("sent");

    const QByteArray home = "{profile=\"a\xEF\xBF\xBD\",sim=\"1\xEF\xBF\xBD\",roaming=\"home\"} ";
    const QByteArray abroad = QByteArray(home).replace("\"home", "\"roaming");
    QTest::newRow("profiles that are no text")
        << QByteArray("a\xFE") << QByteArray("1\xFF") << false << QList<QByteArray>{home + "12"};
    QTest::newRow("SIMs that are no text")
        << QByteArray("a\xFF") << QByteArray("1\xFE") << false << QList<QByteArray>{home + "12"};
    QTest::newRow("not what is roaming") << QByteArray("a\xFF") << QByteArray("1\xFF") << true
                                         << QList<QByteArray>{home + "5", abroad + "7"};
}

void MetricsTextTest::addsUpWhatLooksTheSame()
{
    QFETCH(QByteArray, profile);
    QFETCH(QByteArray, sim);
    QFETCH(bool, isRoaming);
    QTEST(sentBytesOf({sumOf("a\xFF", "1\xFF", false, 5), sumOf(profile, sim, isRoaming, 7)}),
          "sent");
}

void MetricsTextTest::stopsAtTheLargestNumber()
{
    constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
    const auto sent =
        sentBytesOf({sumOf("\xFE", {}, false, largest), sumOf("\xFF", {}, false, largest)});
    QCOMPARE(sent.size(), 1);
    QVERIFY2(sent.first().endsWith(" 9223372036854775807"), sent.first());
}

/// A counter's samples end on "_total" in both, its family in one of them.
void MetricsTextTest::describesFamiliesForReadersOfEachFormat()
{
    const std::vector<ConnectionSum> sums = {sumOf("a", "1", false, 5)};
    const QByteArray beginning = "# TYPE ";
    QCOMPARE(linesOf(sums, prometheus, beginning).first(),
             QByteArray("connrecord_sent_bytes_total counter"));
    QCOMPARE(linesOf(sums, prometheus, beginning).last(), QByteArray("connrecord_recording gauge"));
    QCOMPARE(linesOf(sums, prometheus, "# UNIT "), QList<QByteArray>());
    QCOMPARE(linesOf(sums, openMetrics, beginning).first(),
             QByteArray("connrecord_sent_bytes counter"));
    QCOMPARE(linesOf(sums, openMetrics, "# UNIT ").first(),
             QByteArray("connrecord_sent_bytes bytes"));
    QCOMPARE(linesOf(sums, openMetrics, "connrecord_sent_bytes_total").size(), 1);
    QCOMPARE(linesOf(sums, openMetrics, "# EOF").size(), 1);
}

QTEST_GUILESS_MAIN(MetricsTextTest)

#include "tst_metricstext.moc"
