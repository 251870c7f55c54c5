// SPDX-License-Identifier: MIT
#include "usage/SizeText.h"

#include "usage/SizeAxis.h"

#include <QTest>

#include <limits>

using namespace usage;

class SizeTextTest : public QObject
{
    Q_OBJECT

private slots:
    void writesSizesAndRatesAsTheHistoryDoes_data();
    void writesSizesAndRatesAsTheHistoryDoes();
    void appendsSizesAsItWritesThem();
    void writesShortSizes_data();
    void writesShortSizes();
    void roundsDown_data();
    void roundsDown();
    void writesAPartAsTheWholeOnlyOnceItIs_data();
    void writesAPartAsTheWholeOnlyOnceItIs();
    void writesSizesToBeReadAgain_data();
    void writesSizesToBeReadAgain();
    void writesLessThanNothing();
    void readsSizes_data();
    void readsSizes();
    void refusesWhatIsNoSize_data();
    void refusesWhatIsNoSize();
    void putsTheAxisAtSizesThatReadWell_data();
    void putsTheAxisAtSizesThatReadWell();
};

namespace
{

QString appended(std::int64_t bytes)
{
    std::string text = "before ";
    appendSize(text, bytes);
    return QString::fromStdString(text).mid(7);
}

} // namespace

void SizeTextTest::writesSizesAndRatesAsTheHistoryDoes_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("rate");

    const auto row = [](const char *name, qint64 bytes, const char *size, const char *rate) {
        QTest::newRow(name) << bytes << QString::fromLatin1(size) << QString::fromLatin1(rate);
    };
    const qint64 megabyte = usage::kilobyte * 1024;
    const qint64 gigabyte = megabyte * 1024;
    row("nothing", 0, "0.00 KB", "0 B/s");
    row("one byte", 1, "0.00 KB", "1 B/s");
    row("half a kilobyte", 512, "0.50 KB", "512 B/s");
    row("a byte below a kilobyte", usage::kilobyte - 1, "1.00 KB", "1023 B/s");
    row("a kilobyte", usage::kilobyte, "1.00 KB", "1.00 KB/s");
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
    QTEST(appended(bytes), "size");
}

void SizeTextTest::appendsSizesAsItWritesThem()
{
    // Halves of a hundredth, which are rounded up, and what is beside them.
    for (std::int64_t unit = 1; unit <= std::int64_t(1) << 30U; unit *= 1024) {
        for (std::int64_t bytes = 128; bytes < 1200 * 1024; bytes += 896) {
            for (const std::int64_t near : {bytes * unit - 1, bytes * unit, bytes * unit + 1})
                QCOMPARE(appended(near), sizeText(near));
        }
    }
    for (const std::int64_t bytes : {std::int64_t(1) << 53U, (std::int64_t(1) << 53U) + 1,
                                     std::int64_t(-1), -(std::int64_t(5) << 30U)})
        QCOMPARE(appended(bytes), sizeText(bytes));
}

void SizeTextTest::writesShortSizes_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("size");
    const auto row = [](const char *name, qint64 bytes, const char *size) {
        QTest::newRow(name) << bytes << QString::fromLatin1(size);
    };
    const qint64 megabyte = 1024 * 1024;
    row("nothing", 0, "0 KB");
    row("a byte", 1, "0 KB");
    row("a few bytes", 100, "0.1 KB");
    row("three digits", 3 * megabyte + megabyte / 4, "3.25 MB");
    row("two", 3277 * megabyte, "3.2 GB");
    row("a whole number", 10 * 1024 * megabyte, "10 GB");
    row("tens", 12 * megabyte + megabyte / 3, "12.3 MB");
    row("hundreds", 560 * megabyte + 1, "560 MB");
    row("hundreds that end with a zero", 100 * megabyte, "100 MB");
    row("just below the next unit", 1024 * megabyte - 1, "1024 MB");
    row("less than nothing", -megabyte / 2, "-512 KB");
}

void SizeTextTest::writesShortSizes()
{
    QFETCH(qint64, bytes);
    QTEST(shortSizeText(bytes), "size");
}

void SizeTextTest::roundsDown_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("shortSize");
    const auto row = [](const char *name, qint64 bytes, const char *size, const char *shortSize) {
        QTest::newRow(name) << bytes << QString(size) << QString(shortSize);
    };
    const qint64 gigabyte = 1 << 30;
    row("nothing", 0, "0.00 KB", "0 KB");
    row("a byte less than a megabyte", 1048575, "1023.99 KB", "1023 KB");
    row("a byte less than ten gigabytes", 10 * gigabyte - 1, "9.99 GB", "9.99 GB");
    row("tens", 12 * gigabyte - 1, "11.99 GB", "11.9 GB");
    row("less than nothing", -1, "-0.01 KB", "-0.01 KB");
    row("the largest", std::numeric_limits<qint64>::max(), "8589934591.99 GB", "8589934591 GB");
}

void SizeTextTest::roundsDown()
{
    QFETCH(qint64, bytes);
    QTEST(sizeText(bytes, Rounding::Down), "size");
    QTEST(shortSizeText(bytes, Rounding::Down), "shortSize");
}

void SizeTextTest::writesAPartAsTheWholeOnlyOnceItIs_data()
{
    QTest::addColumn<qint64>("part");
    QTest::addColumn<qint64>("whole");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, qint64 part, qint64 whole, const char *text) {
        QTest::newRow(name) << part << whole << QString(text);
    };
    const qint64 gigabyte = 1 << 30;
    const qint64 ten = 10 * gigabyte;
    const qint64 odd = ten + gigabyte / 25; // 10.04
    const qint64 up = ten + gigabyte / 17;
    row("a part", 3 * gigabyte, ten, "3 GB of 10 GB");
    row("a byte less", ten - 1, ten, "9.99 GB of 10 GB");
    row("the whole", ten, ten, "10 GB of 10 GB");
    row("less than a whole of more digits", odd - gigabyte / 100, odd, "10.02 GB of 10.04 GB");
    row("a byte less than that", odd - 1, odd, "10.03 GB of 10.04 GB");
    row("that", odd, odd, "10 GB of 10 GB");
    row("a whole that is rounded up", up, up, "10.1 GB of 10.1 GB");
    row("more than that", ten + gigabyte / 10 - 1, up, "10.1 GB of 10.1 GB");
    row("of nothing", 0, 0, "0 KB of 0 KB");
}

void SizeTextTest::writesAPartAsTheWholeOnlyOnceItIs()
{
    QFETCH(qint64, part);
    QFETCH(qint64, whole);
    const PartText text = shortPartText(part, whole);
    QTEST(text.part + " of " + text.whole, "text");
}

void SizeTextTest::writesSizesToBeReadAgain_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("size");
    const auto row = [](const char *name, qint64 bytes, const char *size) {
        QTest::newRow(name) << bytes << QString::fromLatin1(size);
    };
    row("nothing", 0, "0 B");
    row("a number of bytes", 1000, "1000 B");
    row("a whole number", 10737418240, "10 GB");
    row("a fraction", 1610612736, "1.5 GB");
    row("a part of a byte was cut", 1664299827, "1.55 GB");
    row("a byte more", 1664299828, "1664299828 B");
    row("a fraction of a unit that is less than one", 536870912, "512 MB");
    row("terabytes", 2748779069440, "2.5 TB");
    row("less than nothing", -2048, "-2 KB");
    row("the largest", std::numeric_limits<qint64>::max(), "9223372036854775807 B");
}

void SizeTextTest::writesSizesToBeReadAgain()
{
    QFETCH(qint64, bytes);
    const WrittenSize written = writtenSize(bytes);
    const QString size = written.number + ' ' + written.unit;
    QTEST(size, "size");
    QCOMPARE(bytesIn(size.toStdString())->value, bytes);
    QVERIFY(writtenUnits().contains(written.unit));
}

void SizeTextTest::writesLessThanNothing()
{
    QCOMPARE(sizeText(-512), QString("-0.50 KB"));
    QCOMPARE(sizeText(-5LL * 1024 * 1024 * 1024), QString("-5.00 GB"));
}

void SizeTextTest::readsSizes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("bytes");
    const auto row = [](const char *text, qint64 bytes) {
        QTest::newRow(text) << QString(text) << bytes;
    };
    row("0", 0);
    row("500", 500);
    row("7B", 7);
    row("1KB", 1024);
    row("20 mb", 20971520);
    row("10GB", 10737418240);
    row("1.5 GB", 1610612736);
    row("0.1KB", 102); // 102.4
    row("2tb", 2199023255552);
    row("0.000000000001TB", 1);
    row("0.00000000000000000000000001GB", 0);
    row("-1.5KB", -1536);
    row("9223372036854775807", std::numeric_limits<qint64>::max());
    row("-9223372036854775808", std::numeric_limits<qint64>::min());
}

void SizeTextTest::readsSizes()
{
    QFETCH(QString, text);
    const auto read = bytesIn(text.toStdString());
    QVERIFY(read && read->isInRange);
    QTEST(qint64(read->value), "bytes");
}

void SizeTextTest::refusesWhatIsNoSize_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isTooLarge");
    for (const char *const text :
         {"", "GB", "ten", "1,5GB", "1.GB", ".5GB", "10 G B", "10GBs", "--1", "+1", "1e3", " 1"})
        QTest::newRow(text) << QString(text) << false;
    for (const char *const text :
         {"9223372036854775808", "9000000TB", "99999999999999999999999999999999999999999TB"})
        QTest::newRow(text) << QString(text) << true;
}

void SizeTextTest::refusesWhatIsNoSize()
{
    QFETCH(QString, text);
    const auto read = bytesIn(text.toStdString());
    QTEST(read.has_value(), "isTooLarge");
    QVERIFY(!read || !read->isInRange);
}

void SizeTextTest::putsTheAxisAtSizesThatReadWell_data()
{
    QTest::addColumn<qint64>("largest");
    QTest::addColumn<int>("mostSteps");
    QTest::addColumn<QString>("lines");
    constexpr qint64 megabyte = 1024 * 1024;
    constexpr qint64 gigabyte = 1024 * megabyte;
    QTest::newRow("nothing") << qint64(0) << 5 << "1 KB";
    QTest::newRow("a byte") << qint64(1) << 5 << "1 KB";
    QTest::newRow("just a line") << qint64(5 * 1024) << 5 << "1 KB 2 KB 3 KB 4 KB 5 KB";
    QTest::newRow("just more") << qint64(5 * 1024 + 1) << 5 << "2 KB 4 KB 6 KB";
    QTest::newRow("hundreds") << 830 * megabyte << 5 << "200 MB 400 MB 600 MB 800 MB 1000 MB";
    QTest::newRow("around a gigabyte")
        << 1100 * megabyte << 5 << "256 MB 512 MB 768 MB 1 GB 1.25 GB";
    QTest::newRow("little room") << 1100 * megabyte << 2 << "1 GB 2 GB";
    QTest::newRow("many gigabytes") << 3300 * gigabyte << 4 << "1000 GB 2000 GB 3000 GB 4000 GB";
}

void SizeTextTest::putsTheAxisAtSizesThatReadWell()
{
    QFETCH(qint64, largest);
    QFETCH(int, mostSteps);
    const SizeAxis axis = sizeAxisFor(largest, mostSteps);
    QStringList lines;
    for (int line = 1; line <= axis.steps; ++line)
        lines.append(shortSizeText(axis.step * line));
    QTEST(lines.join(' '), "lines");
    // The largest number of all has an axis too.
    const auto most = sizeAxisFor(std::numeric_limits<qint64>::max(), mostSteps);
    QVERIFY(most.top() >= 9.2e18 && most.steps <= mostSteps);
}

QTEST_GUILESS_MAIN(SizeTextTest)

#include "tst_sizetext.moc"
