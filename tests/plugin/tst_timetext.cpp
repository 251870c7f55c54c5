// SPDX-License-Identifier: MIT
#include "Campaign.h"
#include "TimeText.h"

#include <QDateTime>
#include <QLocale>
#include <QRandomGenerator>
#include <QTest>

#include <ctime>
#include <iterator>

namespace
{

const QString format = QStringLiteral("yyyyMMddhhmmss");

/// Zones whose clocks change in many ways: by an hour and by half of one, at midnight, on
/// another day than UTC's, in the other half of the year, across the date line, not at
/// all. The last one counts leap seconds, where the system has such zones.
const char *const zones[] = {"Europe/Berlin",      "America/Nuuk",    "Australia/Lord_Howe",
                             "America/Sao_Paulo",  "Pacific/Apia",    "Africa/Casablanca",
                             "Asia/Kathmandu",     "Africa/Monrovia", "UTC",
                             "Pacific/Kiritimati", "Etc/GMT+12",      "right/Europe/Berlin"};

void useZone(const char *zone)
{
    qputenv("TZ", zone);
    tzset();
}

constexpr qint64 endOf2037 = 2145916800; // in UTC

int randomCases()
{
    return campaign::count(6000);
}

quint32 seed(std::uint64_t usual)
{
    return static_cast<quint32>(campaign::seed(usual));
}

bool isSameTime(const QDateTime &actual, const QDateTime &expected)
{
    return actual.isValid() == expected.isValid() && actual.isNull() == expected.isNull() &&
           actual.date() == expected.date() && actual.time() == expected.time() &&
           actual.timeSpec() == expected.timeSpec() &&
           actual.toMSecsSinceEpoch() == expected.toMSecsSinceEpoch() &&
           actual.offsetFromUtc() == expected.offsetFromUtc() &&
           actual.isDaylightTime() == expected.isDaylightTime() && actual == expected;
}

/// Whether the text is parsed as Qt does it; reports it otherwise. For
/// an hour that comes twice Qt takes the one or the other, depending on
/// what it was asked before: then both of its answers are good.
bool isParsedAlike(const QString &text)
{
    const QDateTime expected = QDateTime::fromString(text, format);
    const QDateTime actual = TimeText::parsed(text);
    if (isSameTime(actual, expected) || isSameTime(actual, QDateTime::fromString(text, format)))
        return true;
    qWarning() << "in" << qgetenv("TZ") << text << "gave" << actual << "and not" << expected;
    return false;
}

/// The same for writing; in far years Qt wavers likewise.
bool isWrittenAlike(quint32 seconds)
{
    const auto qtText = [seconds] {
        return QLocale::c().toString(QDateTime::fromSecsSinceEpoch(seconds), format);
    };
    const QString expected = qtText();
    const QString actual = TimeText::of(seconds);
    if (actual == expected || actual == qtText())
        return true;
    qWarning() << "in" << qgetenv("TZ") << seconds << "gave" << actual << "and not" << expected;
    return false;
}

/// Each second at which the zone's offset changes, between two times.
QVector<qint64> transitions(qint64 from, qint64 until)
{
    const auto offsetAt = [](qint64 seconds) {
        return QDateTime::fromSecsSinceEpoch(seconds).offsetFromUtc();
    };
    const qint64 step = 7 * 24 * 3600; // two changes in one week are met as one or none
    QVector<qint64> found;
    for (qint64 start = from; start < until; start += step) {
        if (offsetAt(start) == offsetAt(start + step))
            continue;
        qint64 before = start;
        qint64 after = start + step;
        while (after - before > 1) {
            const qint64 middle = (before + after) / 2;
            (offsetAt(middle) == offsetAt(start) ? before : after) = middle;
        }
        found.append(after);
    }
    return found;
}

QString randomDigits(QRandomGenerator &random)
{
    QString text;
    for (int i = 0; i < 14; ++i)
        text += QLatin1Char(static_cast<char>('0' + random.bounded(10)));
    return text;
}

QString randomTime(QRandomGenerator &random)
{
    const auto seconds = static_cast<qint64>(random.generate64() % (150LL * 365 * 24 * 3600));
    return QDateTime::fromSecsSinceEpoch(seconds - 631152000LL).toString(format);
}

/// A time's text with one character changed, added or missing.
QString nearMiss(QRandomGenerator &random)
{
    static const QString replacements =
        QStringLiteral("0123456789 -+.,:aAmpTZ") + QChar(0x0661) + QChar(0xff11) + QChar(0);
    QString text = randomTime(random);
    const int place = random.bounded(14);
    const QChar character = replacements.at(random.bounded(int(replacements.size())));
    switch (random.bounded(4)) {
    case 0:
        return text.insert(place, character);
    case 1:
        return text.remove(place, 1);
    default:
        text[place] = character;
        return text;
    }
}

} // namespace

class tst_TimeText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { useZone("Europe/Berlin"); }

    void parsesAndWritesAKnownTime();
    void parsesOddTexts_data();
    void parsesOddTexts();
    void parsesEveryDateLikeQt();
    void parsesEachSecondAroundClockChangesLikeQt();
    void parsesRandomTextsLikeQt();
    void writesEachSecondAroundClockChangesLikeQt();
    void writesTheEdgesOfItsRangeLikeQt();
    void writesRandomTimesLikeQt();
    void noticesAnotherZone();
    void writesAsciiDigitsInEveryLanguage();
};

void tst_TimeText::parsesAndWritesAKnownTime()
{
    QCOMPARE(TimeText::parsed(QStringLiteral("20100305143000")),
             QDateTime(QDate(2010, 3, 5), QTime(14, 30)));
    QCOMPARE(TimeText::of(1267795800), QStringLiteral("20100305143000"));
}

void tst_TimeText::parsesOddTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("no text") << QString();
    QTest::newRow("an empty text") << QStringLiteral("");
    QTest::newRow("too short") << QStringLiteral("2010030514300");
    QTest::newRow("too long") << QStringLiteral("201003051430000");
    QTest::newRow("letters") << QStringLiteral("not a date....");
    QTest::newRow("year 0") << QStringLiteral("00000101000000");
    QTest::newRow("year 1") << QStringLiteral("00010101000000");
    QTest::newRow("before the first year") << QStringLiteral("19691231235959");
    QTest::newRow("after the last year") << QStringLiteral("20370101000000");
    QTest::newRow("year 9999") << QStringLiteral("99991231235959");
    QTest::newRow("month 0") << QStringLiteral("20100005143000");
    QTest::newRow("month 13") << QStringLiteral("20101305143000");
    QTest::newRow("day 0") << QStringLiteral("20100300143000");
    QTest::newRow("29 February of a common year") << QStringLiteral("20110229143000");
    QTest::newRow("29 February of a leap year") << QStringLiteral("20120229143000");
    QTest::newRow("hour 24") << QStringLiteral("20100305240000");
    QTest::newRow("minute 60") << QStringLiteral("20100305146000");
    QTest::newRow("a leap second") << QStringLiteral("20161231235960");
    QTest::newRow("an hour that the clocks skip") << QStringLiteral("20100328023000");
    QTest::newRow("an hour that comes twice") << QStringLiteral("20101031023000");
    QTest::newRow("blanks around") << QStringLiteral(" 20100305143000 ");
    QTest::newRow("a blank within") << QStringLiteral("2010 305143000");
    QTest::newRow("a sign") << QStringLiteral("+2010030514300");
    QTest::newRow("digits of another script")
        << QString(QStringLiteral("2010030514300") + QChar(0x0660));
}

void tst_TimeText::parsesOddTexts()
{
    QFETCH(QString, text);
    QVERIFY(isParsedAlike(text));
}

void tst_TimeText::parsesEveryDateLikeQt()
{
    int step = 1; // newer Qt takes long to parse, so other zones take a share of the days
    for (const char *zone : zones) {
        useZone(zone);
        for (QDate date(2007, 1, 1); date < QDate(2012, 1, 1); date = date.addDays(step)) {
            const QString day = date.toString(QStringLiteral("yyyyMMdd"));
            for (const char *time : {"000000", "120000", "235959"})
                QVERIFY(isParsedAlike(day + QLatin1String(time)));
        }
        step = 11;
    }
}

void tst_TimeText::parsesEachSecondAroundClockChangesLikeQt()
{
    for (const char *zone : zones) {
        useZone(zone);
        for (const qint64 transition : transitions(31536000, endOf2037)) {
            const int offset = QDateTime::fromSecsSinceEpoch(transition).offsetFromUtc();
            const QDateTime change = QDateTime::fromSecsSinceEpoch(transition + offset).toUTC();
            for (int minutes = -120; minutes <= 120; minutes += 30) {
                for (int seconds = -1; seconds <= 1; ++seconds)
                    QVERIFY(isParsedAlike(change.addSecs(60 * minutes + seconds).toString(format)));
            }
            for (int hours = -30; hours <= 30; hours += 5)
                QVERIFY(isParsedAlike(change.addSecs(3600 * hours).toString(format)));
        }
    }
}

void tst_TimeText::parsesRandomTextsLikeQt()
{
    QRandomGenerator random(seed(20101121));
    for (const char *zone : zones) {
        useZone(zone);
        for (int i = randomCases() / int(3 * std::size(zones)); i > 0; --i) {
            QVERIFY(isParsedAlike(randomTime(random)));
            QVERIFY(isParsedAlike(nearMiss(random)));
            QVERIFY(isParsedAlike(randomDigits(random)));
        }
    }
}

void tst_TimeText::writesEachSecondAroundClockChangesLikeQt()
{
    for (const char *zone : zones) {
        useZone(zone);
        const qint64 lastChange = (1LL << 32) - 8 * 24 * 3600;
        for (const qint64 transition : transitions(0, lastChange)) {
            for (int seconds = -2; seconds <= 2; ++seconds)
                QVERIFY(isWrittenAlike(static_cast<quint32>(transition + seconds)));
        }
    }
}

void tst_TimeText::writesTheEdgesOfItsRangeLikeQt()
{
    for (const char *zone : zones) {
        useZone(zone);
        for (const qint64 edge : {qint64(0), endOf2037, 1LL << 31, 1LL << 32}) {
            for (qint64 seconds = edge - 86400; seconds <= edge + 86400; seconds += 1800) {
                for (const qint64 near : {seconds - 1, seconds, seconds + 1})
                    QVERIFY(isWrittenAlike(static_cast<quint32>(near))); // wraps, as meant
            }
        }
    }
}

void tst_TimeText::writesRandomTimesLikeQt()
{
    QRandomGenerator random(seed(20101122));
    for (const char *zone : zones) {
        useZone(zone);
        for (int i = randomCases() / 10; i > 0; --i)
            QVERIFY(isWrittenAlike(random.generate()));
    }
}

void tst_TimeText::noticesAnotherZone()
{
    QCOMPARE(TimeText::of(1267795800), QStringLiteral("20100305143000"));
    // Without a word to the C library, as a host might do it.
    qputenv("TZ", "Asia/Tokyo");
    QCOMPARE(TimeText::of(1267795800), QStringLiteral("20100305223000"));
}

void tst_TimeText::writesAsciiDigitsInEveryLanguage()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    const QString near = TimeText::of(1267795800);
    const QString late = TimeText::of(4000000000U);
    QLocale::setDefault(before);
    QCOMPARE(near, QStringLiteral("20100305143000"));
    QCOMPARE(late, QStringLiteral("20961002090640"));
}

QTEST_GUILESS_MAIN(tst_TimeText)
#include "tst_timetext.moc"
