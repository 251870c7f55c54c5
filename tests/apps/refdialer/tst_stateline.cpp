// SPDX-License-Identifier: MIT
#include "ShownText.h"
#include "apps/refdialer/LineState.h"
#include "apps/refdialer/ProblemLine.h"
#include "apps/refdialer/StateLine.h"
#include "refhost/libcore/Host.h"

#include <QFile>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocumentFragment>
#include <QVBoxLayout>

#include <QTimeZone>
#include <limits>

using recorder::ConnectionState;
using refdialer::LineState;
using refdialer::StateLine;

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
    void namesTheInterfaceWhereTwoShareAProfile();
    void keepsItsHeight();
    void showsWhatIsWrongUntilThatIsOver();
    void saysWhatItShowsIfNothingIsWatched();
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
    state.uploadRate = 249;
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
    QCOMPARE(shownText(line), "No connections recorded yet in " + file);
    QFile store(file);
    QVERIFY(store.open(QFile::WriteOnly));
    QCOMPARE(shownText(StateLine({file, false}, state)), "History in " + file);
    QCOMPARE(line.findChild<QLabel *>()->textFormat(), Qt::PlainText);
    QCOMPARE(QTextDocumentFragment::fromHtml(line.toolTip()).toPlainText(),
             "No connections recorded yet in " + file);
}

void TestStateLine::saysThatItIsASample()
{
    const LineState state;
    const StateLine sample({"connections.db", true}, state);
    QVERIFY(shownText(sample).startsWith("Sample history."));
    QVERIFY(refhost::setLanguage("de"));
    QTRY_VERIFY(shownText(sample).startsWith("Beispielverlauf."));
}

void TestStateLine::saysThatThereIsNoConnection()
{
    LineState state;
    const StateLine line({"connections.db", false}, state);
    state.setWatched(true);
    QCOMPARE(shownText(line), QString("Not connected"));
    QVERIFY(line.toolTip().contains("connections.db"));
}

void TestStateLine::showsTheConnectionWhileItLasts()
{
    LineState state;
    StateLine line({"connections.db", false}, state);
    line.setLocale(QLocale("en_GB"));
    state.setWatched(true);
    state.begin(connection());
    QCOMPARE(shownText(line),
             "%3<b>wwan0 | connected since " +
                 QLocale("en_GB").toString(QDateTime(QDate(2026, 9, 1), QTime(14, 30)),
                                           QLocale::ShortFormat) +
                 " | Sent: 1.50 KB (249 B/s) | Received: 3.00 GB (5.00 MB/s)");
    ConnectionState later = connection();
    later.uploadedBytes = 2048;
    state.update(later);
    QVERIFY2(shownText(line).contains("Sent: 2.00 KB"), qPrintable(shownText(line)));
    state.end(connection().id);
    QCOMPARE(shownText(line), QString("Not connected"));
}

void TestStateLine::showsEachConnection()
{
    LineState state;
    const StateLine line({"connections.db", false}, state);
    state.setWatched(true);
    state.begin(connection("wwan0", 1));
    state.begin(connection("ppp0", 2));
    const QStringList lines = shownText(line).split('\n');
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines.at(0).startsWith("%3<b>wwan0 | "));
    QVERIFY(lines.at(1).startsWith("%3<b>ppp0 | "));
    state.end(1);
    QCOMPARE(shownText(line).count('\n'), 0);
    QVERIFY(shownText(line).startsWith("%3<b>ppp0 | "));
}

void TestStateLine::namesTheInterfaceWhereTwoShareAProfile()
{
    LineState state;
    const StateLine line({"connections.db", false}, state);
    state.setWatched(true);
    qint64 id = 0;
    for (const char *const interfaceName : {"wwan0", "wwan1", "ppp0"}) {
        ConnectionState made = connection(interfaceName, ++id);
        made.profile = id < 3 ? "internet.example" : "other.example";
        state.begin(made);
    }
    const QStringList lines = shownText(line).split('\n');
    QVERIFY(lines.at(0).startsWith("internet.example (wwan0) | "));
    QVERIFY(lines.at(1).startsWith("internet.example (wwan1) | "));
    QVERIFY(lines.at(2).startsWith("other.example | "));
    state.end(1);
    QVERIFY(shownText(line).startsWith("internet.example | "));
}

void TestStateLine::keepsItsHeight()
{
    LineState state;
    QWidget window;
    auto *const layout = new QVBoxLayout(&window);
    auto *const line = new StateLine({"connections.db", false}, state);
    layout->addWidget(line);
    layout->addStretch(1);
    state.setWatched(true);
    window.resize(300, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const int height = line->height();
    state.begin(connection());
    ConnectionState longer = connection();
    longer.profile = QString(500, 'w') + "\n" + QString::fromUtf8("\u0627\u0e49\u0e49\u0e49");
    longer.uploadedBytes = std::numeric_limits<qint64>::max();
    longer.downloadRate = longer.uploadedBytes;
    for (const char *const language : {"en", "de"}) {
        QVERIFY(refhost::setLanguage(language));
        for (const char *const place : {"en_US", "ar_EG", "hi_IN", "th_TH"}) {
            line->setLocale(QLocale(place));
            for (const ConnectionState &shown : {connection(), longer}) {
                state.update(shown);
                QCoreApplication::processEvents();
                QCOMPARE(line->height(), height);
                QCOMPARE(window.width(), 300);
            }
        }
    }
    state.begin(connection("ppp0", 2));
    QTRY_VERIFY(line->height() > height);
    state.end(2);
    QTRY_COMPARE(line->height(), height);
}

void TestStateLine::showsWhatIsWrongUntilThatIsOver()
{
    LineState state;
    const StateLine line({"connections.db", false}, state);
    QWidget window;
    const refdialer::ProblemLine problem(state, &window);
    QVERIFY(problem.isHidden());
    state.setWatched(true);
    state.begin(connection());
    state.setProblem("The disk is <b>full.");
    state.update(connection());
    state.end(connection().id);
    QCOMPARE(shownText(line), QString("Not connected"));
    QVERIFY(!problem.isHidden());
    QCOMPARE(problem.text(), QString("The disk is <b>full."));
    QCOMPARE(problem.textFormat(), Qt::PlainText);
    state.setProblem(QString());
    QVERIFY(problem.isHidden());
}

void TestStateLine::saysWhatItShowsIfNothingIsWatched()
{
    LineState state;
    const StateLine line({"connections.db", false}, state);
    state.begin(connection());
    state.setWatched(false);
    QCOMPARE(shownText(line), QString("No connections recorded yet in connections.db"));
}

void TestStateLine::speaksTheLanguageOfTheProgram()
{
    LineState state;
    StateLine line({"connections.db", false}, state);
    state.setWatched(true);
    QVERIFY(refhost::setLanguage("de"));
    QTRY_COMPARE(shownText(line), QString("Nicht verbunden"));
    state.begin(connection());
    line.setLocale(QLocale("de_DE"));
    QVERIFY2(shownText(line).contains("Gesendet: 1.50 KB"), qPrintable(shownText(line)));
    QVERIFY2(shownText(line).contains("01.09.26"), qPrintable(shownText(line)));
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
