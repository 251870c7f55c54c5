// SPDX-License-Identifier: MIT
#include "LogCapture.h"
#include "NetInfoRecordLogic.h"

#include <QTest>

#include <cmath>
#include <limits>

class tst_Formatting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { NetInfoRecordLogic::Destroy(); }

    void writesDurations_data();
    void writesDurations();
    void replacesWhatTheResultHeldBefore();
    void logsEachDuration();
    void writesVolumes_data();
    void writesVolumes();
    void logsNoVolume();

private:
    NetInfoRecordLogic *m_logic = NetInfoRecordLogic::Instance();
};

void tst_Formatting::writesDurations_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<QString>("text");
    const auto row = [](qint64 seconds, const char *text) {
        QTest::addRow("%lld s", static_cast<long long>(seconds)) << seconds << QString(text);
    };
    row(0, "00:00:00");
    row(9, "00:00:09");
    row(10, "00:00:10");
    row(59, "00:00:59");
    row(60, "00:01:00");
    row(3599, "00:59:59");
    row(3600, "01:00:00");
    row(36000, "10:00:00");
    row(86400, "24:00:00");
    row(90061, "25:01:01");
    row(360000, "100:00:00");
    row(2147483647, "596523:14:07");
    row(-5, "00:00:0-5");
    row(-60, "00:0-1:00");
    row(-3600, "0-1:00:00");
    row(-3661, "0-1:0-1:0-1");
    row(-36000, "0-10:00:00");
    row(std::numeric_limits<qint64>::max(), "2562047788015215:30:07");
    row(std::numeric_limits<qint64>::min(), "0-2562047788015215:0-30:0-8");
}

void tst_Formatting::writesDurations()
{
    QFETCH(qint64, seconds);
    QString result;
    m_logic->convertTimeToString(seconds, result);
    QTEST(result, "text");
}

void tst_Formatting::replacesWhatTheResultHeldBefore()
{
    QString result = QStringLiteral("earlier text");
    m_logic->convertTimeToString(61, result);
    QCOMPARE(result, QStringLiteral("00:01:01"));
}

void tst_Formatting::logsEachDuration()
{
    LogCapture log;
    QString result;
    m_logic->convertTimeToString(1, result);
    const QString path = QStringLiteral("../../src/NetInfoRecordUIPlugin/NetInfoRecordLogic");
    QCOMPARE(log.take(), (QStringList{"<now>: " + path + ": convertTimeToString: Entered",
                                      "<now>: " + path + ": convertTimeToString 457: Exit"}));
}

void tst_Formatting::writesVolumes_data()
{
    QTest::addColumn<double>("kilobytes");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, double kilobytes, const char *text) {
        QTest::newRow(name) << kilobytes << QString(text);
    };
    row("nothing", 0, "0.00 KB");
    row("half a kilobyte", 0.5, "0.50 KB");
    row("one byte", 1 / 1024.0, "0.00 KB");
    row("1.5 KB", 1.5, "1.50 KB");
    row("just below a megabyte rounds after the unit is chosen", 1023.999, "1024.00 KB");
    row("a megabyte", 1024, "1.00 MB");
    row("1.5 MB", 1536, "1.50 MB");
    row("just below a gigabyte", 1048575, "1024.00 MB");
    row("a gigabyte", 1048576, "1.00 GB");
    row("a terabyte stays in gigabytes", 1073741824.0, "1024.00 GB");
    row("an exabyte stays in gigabytes", 1125899906842624.0, "1073741824.00 GB");
    row("negative stays in kilobytes", -5, "-5.00 KB");
    row("negative and large stays in kilobytes", -2048, "-2048.00 KB");
    row("not a number", std::nan(""), "nan KB");
    row("infinite", std::numeric_limits<double>::infinity(), "inf GB");
}

void tst_Formatting::writesVolumes()
{
    QFETCH(double, kilobytes);
    QTEST(m_logic->TransformUnits(kilobytes), "text");
}

void tst_Formatting::logsNoVolume()
{
    LogCapture log;
    m_logic->TransformUnits(2048);
    QVERIFY(log.take().isEmpty());
}

QTEST_MAIN(tst_Formatting)
#include "tst_formatting.moc"
