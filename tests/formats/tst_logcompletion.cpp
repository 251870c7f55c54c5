// SPDX-License-Identifier: MIT
#include "formats/LogCompletion.h"

#include <QTest>

using namespace formats;
using namespace history;

Q_DECLARE_METATYPE(formats::ProfileSource)

class LogCompletionTest : public QObject
{
    Q_OBJECT

private slots:
    void takesOverWhatTheLogKnowsMore_data();
    void takesOverWhatTheLogKnowsMore();
    void replacesAnImplausibleStart();
    void takesOverHowItEnded();
};

namespace
{

/// "profile interface start" of a connection of 30 s that ended at 100.
history::Connection connectionOf(const QString &text)
{
    const QStringList words = text.split(' ');
    history::Connection connection;
    connection.profile = words[0].toStdString();
    connection.interfaceName = words[1].toStdString();
    connection.startUtc = words[2].toInt();
    connection.endUtc = 100;
    connection.connectedSeconds = 30;
    return connection;
}

QString textOf(const history::Connection &connection)
{
    return QString("%1 %2 %3")
        .arg(QString::fromStdString(connection.profile),
             QString::fromStdString(connection.interfaceName))
        .arg(connection.startUtc);
}

} // namespace

void LogCompletionTest::takesOverWhatTheLogKnowsMore_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("logged");
    QTest::addColumn<ProfileSource>("source");
    QTest::addColumn<QString>("completed");

    const auto placeholder = ProfileSource::Placeholder;
    const auto option = ProfileSource::Option;
    const auto log = ProfileSource::Log;
    QTest::newRow("everything") << "ppp  70"
                                << "apn ppp0 68" << log << "apn ppp0 68";
    QTest::newRow("nothing") << "apn ppp0 68"
                             << "ppp  70" << placeholder << "apn ppp0 68";
    QTest::newRow("the interface, and the profile that goes by it")
        << "ppp  70"
        << "ppp0 ppp0 68" << placeholder << "ppp0 ppp0 68";
    QTest::newRow("the profile of the log in place of the user's")
        << "given ppp0 68"
        << "apn ppp0 68" << log << "apn ppp0 68";
    QTest::newRow("the user's other profile") << "given ppp0 68"
                                              << "other ppp0 68" << option << "given ppp0 68";
    QTest::newRow("the user's profile for one that has none")
        << "ppp0 ppp0 68"
        << "given ppp0 68" << option << "given ppp0 68";
    QTest::newRow("a profile of a log that has lost the beginning")
        << "apn ppp0 68"
        << "other  70" << log << "apn ppp0 68";
    QTest::newRow("a profile of a log for one that neither has the beginning of")
        << "given  70"
        << "apn  70" << log << "apn  70";
    QTest::newRow("an earlier line of the start") << "apn ppp0 69"
                                                  << "apn ppp0 68" << log << "apn ppp0 68";
    QTest::newRow("a later line of the start") << "apn ppp0 68"
                                               << "apn ppp0 69" << log << "apn ppp0 68";
    QTest::newRow("a line of the start behind the one that was worked out")
        << "apn ppp0 70"
        << "apn ppp0 71" << log << "apn ppp0 71";
}

void LogCompletionTest::takesOverWhatTheLogKnowsMore()
{
    QFETCH(QString, stored);
    QFETCH(QString, logged);
    QFETCH(ProfileSource, source);
    QFETCH(QString, completed);
    history::Connection connection = connectionOf(stored);
    QCOMPARE(completeFromLog(connection, connectionOf(logged), source), stored != completed);
    QCOMPARE(textOf(connection), completed);
}

void LogCompletionTest::replacesAnImplausibleStart()
{
    history::Connection stored = connectionOf("apn ppp0 70");
    stored.endUtc = 1700000000;
    history::Connection logged = stored;
    logged.startUtc = logged.endUtc - logged.connectedSeconds;
    QVERIFY(completeFromLog(stored, logged, ProfileSource::Log));
    QCOMPARE(stored.startUtc, logged.startUtc);
}

void LogCompletionTest::takesOverHowItEnded()
{
    history::Connection stored = connectionOf("apn ppp0 70");
    history::Connection logged = stored;
    logged.ending = "modem hangup";
    QVERIFY(completeFromLog(stored, logged, ProfileSource::Log));
    QCOMPARE(stored.ending, std::string("modem hangup"));
    QVERIFY(!completeFromLog(stored, connectionOf("apn ppp0 70"), ProfileSource::Log));
    QCOMPARE(stored.ending, std::string("modem hangup"));
}

QTEST_GUILESS_MAIN(LogCompletionTest)

#include "tst_logcompletion.moc"
