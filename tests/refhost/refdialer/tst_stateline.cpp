// SPDX-License-Identifier: MIT
#include "Host.h"
#include "LineState.h"
#include "StateLine.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

using refhost::ConnectionState;
using refhost::LineState;
using refhost::StateLine;

class TestStateLine : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(refhost::setLanguage("en")); }

    void saysWhereTheHistoryComesFrom();
    void saysThatItIsASample();
    void saysThatThereIsNoConnection();
    void showsTheConnectionWhileItLasts();
    void showsEachConnection();
    void showsWhatIsWrongUntilThatIsOver();
    void saysWhyNothingIsWatched();
    void speaksTheLanguageOfTheProgram();
    void tellsWhatHappensInOrder();

private:
    ConnectionState connection(const QString &interfaceName = "wwan0", qint64 id = 1) const;
};

ConnectionState TestStateLine::connection(const QString &interfaceName, qint64 id) const
{
    ConnectionState state;
    state.id = id;
    state.profile = "%3<b>" + interfaceName;
    state.interfaceName = interfaceName;
    state.since = QDateTime(QDate(2026, 9, 1), QTime(12, 30), QTimeZone::utc());
    state.uploadedBytes = 1536;
    state.uploadRate = 100;
    state.downloadedBytes = 3LL << 30;
    state.downloadRate = 5 << 20;
    return state;
}

void TestStateLine::saysWhereTheHistoryComesFrom()
{
    const QTemporaryDir folder;
    const LineState state;
    const QString file = folder.filePath("<b>connections.db");
    const StateLine line({file, false}, state);
    QCOMPARE(line.text(), "No connections recorded yet in " + file);
    QFile store(file);
    QVERIFY(store.open(QFile::WriteOnly));
    QCOMPARE(StateLine({file, false}, state).text(), "History in " + file);
    QCOMPARE(line.textFormat(), Qt::PlainText);
}

void TestStateLine::saysThatItIsASample()
{
    const LineState state;
    const StateLine sample({"connections.db", true}, state);
    QVERIFY(sample.text().startsWith("Sample history."));
    QVERIFY(refhost::setLanguage("de"));
    QTRY_VERIFY(sample.text().startsWith("Beispielverlauf."));
}

void TestStateLine::saysThatThereIsNoConnection()
{
    LineState state;
    const StateLine line({"connections.db", false}, state);
    state.setWatched(true);
    QCOMPARE(line.text(), QString("Not connected"));
    QVERIFY(line.toolTip().contains("connections.db"));
}

void TestStateLine::showsTheConnectionWhileItLasts()
{
    LineState state;
    StateLine line({"connections.db", false}, state);
    line.setLocale(QLocale("en_GB"));
    state.setWatched(true);
    state.begin(connection());
    QCOMPARE(line.text(),
             "%3<b>wwan0, connected since " +
                 QLocale("en_GB").toString(QDateTime(QDate(2026, 9, 1), QTime(14, 30)),
                                           QLocale::ShortFormat) +
                 ". Sent: 1.50 KB (100 bytes per second), received: 3.00 GB (5.00 MB per second)");
    ConnectionState later = connection();
    later.uploadedBytes = 2048;
    state.update(later);
    QVERIFY2(line.text().contains("Sent: 2.00 KB"), qPrintable(line.text()));
    state.end(connection().id);
    QCOMPARE(line.text(), QString("Not connected"));
}

void TestStateLine::showsEachConnection()
{
    LineState state;
    const StateLine line({"connections.db", false}, state);
    state.setWatched(true);
    state.begin(connection("wwan0", 1));
    state.begin(connection("ppp0", 2));
    const QStringList lines = line.text().split('\n');
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines.at(0).startsWith("%3<b>wwan0, "));
    QVERIFY(lines.at(1).startsWith("%3<b>ppp0, "));
}

void TestStateLine::showsWhatIsWrongUntilThatIsOver()
{
    LineState state;
    const StateLine line({"connections.db", false}, state);
    state.setWatched(true);
    state.begin(connection());
    state.setProblem("The disk is full.");
    state.update(connection());
    state.end(connection().id);
    QCOMPARE(line.text(), QString("Not connected\nThe disk is full."));
    state.setProblem(QString());
    QCOMPARE(line.text(), QString("Not connected"));
}

void TestStateLine::saysWhyNothingIsWatched()
{
    LineState state;
    const StateLine line({"connections.db", false}, state);
    state.setWatched(false);
    state.setProblem("No permission.");
    QCOMPARE(line.text(), QString("No connections recorded yet in connections.db\nNo permission."));
}

void TestStateLine::speaksTheLanguageOfTheProgram()
{
    LineState state;
    StateLine line({"connections.db", false}, state);
    state.setWatched(true);
    QVERIFY(refhost::setLanguage("de"));
    QTRY_COMPARE(line.text(), QString("Nicht verbunden"));
    state.begin(connection());
    line.setLocale(QLocale("de_DE"));
    QVERIFY2(line.text().contains("1,50 KB"), qPrintable(line.text()));
}

void TestStateLine::tellsWhatHappensInOrder()
{
    LineState state;
    const QSignalSpy connected(&state, &LineState::connected);
    bool isGoneFromTheList = false;
    connect(&state, &LineState::disconnected, this,
            [&] { isGoneFromTheList = state.connections().isEmpty(); });
    state.begin(connection());
    state.update(connection());
    QCOMPARE(connected.size(), 1);
    QCOMPARE(state.connections().size(), 1);
    state.end(connection().id);
    QVERIFY(isGoneFromTheList);
}

QTEST_MAIN(TestStateLine)
#include "tst_stateline.moc"
