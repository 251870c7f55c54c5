// SPDX-License-Identifier: MIT
#include "apps/common/ProblemText.h"
#include "recorder/Problem.h"
#include "refhost/libcore/Host.h"

#include <QTest>

using recorder::Problem;

using Kind = Problem::Kind;
using Obstacle = Problem::Obstacle;

namespace
{

Problem problem(Kind kind, Obstacle obstacle = Obstacle::None)
{
    Problem problem;
    problem.kind = kind;
    problem.path = QStringLiteral("/a/file");
    problem.otherPath = QStringLiteral("/another");
    problem.obstacle = obstacle;
    problem.reason = QStringLiteral("Permission denied");
    problem.standInUtc = 4294967295;
    return problem;
}

} // namespace

class ProblemTextTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { refhost::setLanguage(QStringLiteral("en")); }

    void saysWhatWhereAndWhatToDo_data();
    void saysWhatWhereAndWhatToDo();
    void namesWhoRecords();
    void speaksTheLanguageOfTheProgram();
};

void ProblemTextTest::saysWhatWhereAndWhatToDo_data()
{
    QTest::addColumn<Problem>("problem");
    QTest::addColumn<QString>("text");
    QTest::newRow("the history's own sentence")
        << problem(Kind::HistoryFailed) << QStringLiteral("Permission denied");
    QTest::newRow("no boot id") << problem(Kind::BootIdUnreadable)
                                << QStringLiteral(
                                       "\"/proc/sys/kernel/random/boot_id\" cannot be read, so "
                                       "connections are not recorded; mount /proc.");
    QTest::newRow("another recorder that is not known")
        << problem(Kind::RecordedByAnother)
        << QStringLiteral("Connections are recorded by another program already, and appear here "
                          "when they have ended.");
    QTest::newRow("a lock that cannot be written")
        << problem(Kind::LockUnwritable)
        << QStringLiteral("Connections are not recorded, for /a/file cannot be written "
                          "(Permission denied); allow yourself to write there.");
    QTest::newRow("something in the way of the lock")
        << problem(Kind::LockObstructed, Obstacle::HardLink)
        << QStringLiteral("Connections are not recorded, for /a/file is in the way of the lock (it "
                          "is a hard link to another file); move it away.");
    QTest::newRow("another user's file in the way of the lock")
        << problem(Kind::LockObstructed, Obstacle::OfAnotherUser)
        << QStringLiteral("Connections are not recorded, for /a/file is in the way of the lock (it "
                          "belongs to another user); move it away.");
    QTest::newRow("no news of links")
        << problem(Kind::LinksUnwatchable)
        << QStringLiteral("The network interfaces cannot be watched (Permission denied), so "
                          "connections are not recorded; that is tried again every other second.");
    QTest::newRow("a clock beyond the history")
        << problem(Kind::ClockOutOfRange)
        << QStringLiteral("The system's clock shows a time that the history cannot hold, so "
                          "connections get 2106-02-07 06:28:15 UTC instead; set the clock.");
    QTest::newRow("a damaged file of connections")
        << problem(Kind::UnwrittenUnreadable, Obstacle::Damaged)
        << QStringLiteral(
               "\"/a/file\" may keep connections that are not in the history, but cannot "
               "be read (it is damaged or of another program); it was left as it is, "
               "move it away.");
    QTest::newRow("no file of connections")
        << problem(Kind::UnwrittenUnreadable, Obstacle::NotAFile)
        << QStringLiteral(
               "\"/a/file\" may keep connections that are not in the history, but cannot "
               "be read (it is not a file); it was left as it is, move it away.");
    QTest::newRow("a file of connections that cannot be written")
        << problem(Kind::UnwrittenUnwritable)
        << QStringLiteral("\"/a/file\" cannot be written (Permission denied), so connections that "
                          "the history could not take are lost; allow yourself to write there.");
    QTest::newRow("no place for connections")
        << problem(Kind::UnwrittenObstructed)
        << QStringLiteral("\"/a/file\" and \"/another\" are in the way, so connections that the "
                          "history could not take are lost; move them away.");
}

void ProblemTextTest::saysWhatWhereAndWhatToDo()
{
    QFETCH(Problem, problem);
    QTEST(common::problemText(problem), "text");
}

void ProblemTextTest::namesWhoRecords()
{
    Problem another = problem(Kind::RecordedByAnother);
    another.program = QStringLiteral("refdialer");
    another.process = 123;
    QCOMPARE(common::problemText(another),
             QStringLiteral("Connections are recorded by another refdialer already (process 123), "
                            "and appear here when they have ended."));
}

void ProblemTextTest::speaksTheLanguageOfTheProgram()
{
    refhost::setLanguage(QStringLiteral("de"));
    const QString text = common::problemText(problem(Kind::LockObstructed, Obstacle::NotAFile));
    QVERIFY2(text.startsWith("Es werden keine Verbindungen aufgezeichnet, denn /a/file steht der "
                             "Sperre im Weg (keine gewöhnliche Datei)."),
             qPrintable(text));
}

QTEST_GUILESS_MAIN(ProblemTextTest)

#include "tst_problemtext.moc"
