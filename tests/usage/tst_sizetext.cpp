// SPDX-License-Identifier: MIT
#include "usage/SizeText.h"

#include <QTest>

#include <limits>

using namespace usage;

class SizeTextTest : public QObject
{
    Q_OBJECT

private slots:
    void writesSizesAndRatesAsTheHistoryDoes_data();
    void writesSizesAndRatesAsTheHistoryDoes();
};

void SizeTextTest::writesSizesAndRatesAsTheHistoryDoes_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("rate");

    const auto row = [](const char *name, qint64 bytes, const char *size, const char *rate) {
        QTest::newRow(name) << bytes << QString::fromLatin1(size) << QString::fromLatin1(rate);
    };
    const qint64 kilobyte = 1024;
    const qint64 megabyte = kilobyte * 1024;
    const qint64 gigabyte = megabyte * 1024;
    row("nothing", 0, "0.00 KB", "0 B/s");
    row("one byte", 1, "0.00 KB", "1 B/s");
    row("half a kilobyte", 512, "0.50 KB", "512 B/s");
    row("a byte below a kilobyte", kilobyte - 1, "1.00 KB", "1023 B/s");
    row("a kilobyte", kilobyte, "1.00 KB", "1.00 KB/s");
    row("a byte below a megabyte", megabyte - 1, "1024.00 KB", "1024.00 KB/s");
    row("a megabyte", megabyte, "1.00 MB", "1.00 MB/s");
    row("a byte below a gigabyte", gigabyte - 1, "1024.00 MB", "1024.00 MB/s");
    row("a gigabyte", gigabyte, "1.00 GB", "1.00 GB/s");
    row("a terabyte", gigabyte * 1024, "1024.00 GB", "1024.00 GB/s");
    row("a terabyte and a half", gigabyte * 1536, "1536.00 GB", "1536.00 GB/s");
    row("the largest", std::numeric_limits<qint64>::max(), "8589934592.00 GB",
        "8589934592.00 GB/s");
}

void SizeTextTest::writesSizesAndRatesAsTheHistoryDoes()
{
    QFETCH(qint64, bytes);
    QTEST(sizeText(bytes), "size");
    QTEST(rateText(bytes), "rate");
}

QTEST_APPLESS_MAIN(SizeTextTest)

#include "tst_sizetext.moc"
