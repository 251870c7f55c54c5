// SPDX-License-Identifier: MIT
#include "RecordedPlanTest.h"

#include <QFile>

#include <csignal>

/// How the program that records tells the desktop of its warnings.
class ConnrecordNotificationsTest : public RecordedPlanTest
{
    Q_OBJECT

public:
    using RecordedPlanTest::RecordedPlanTest;

private slots:
    void warnsWhenTheServiceComes();
    void warnsWhenTheBusComes();
    void hasTheBusStartTheService();
    void warnsOnlyWhileThatIsWanted();
    void speaksTheLanguageOfTheUser_data();
    void speaksTheLanguageOfTheUser();
};

/// A restart while there is no service must not lose the warning.
void ConnrecordNotificationsTest::warnsWhenTheServiceComes()
{
    QVERIFY(m_desktop->giveNameAway());
    addPlan("home", {50});
    Program program = start();
    QTRY_VERIFY(program->said().contains("Connected"));
    QVERIFY(use(50));
    QTRY_VERIFY_WITH_TIMEOUT(program->said().contains(title("home", 50).toUtf8()),
                             checkpointTimeout);
    QCOMPARE(program->exitCodeAfter(SIGTERM), 0);
    program = start();
    QTRY_VERIFY_WITH_TIMEOUT(program->said().contains(title("home", 50).toUtf8()),
                             checkpointTimeout);
    QVERIFY(m_desktop->takeName());
    QTRY_COMPARE_WITH_TIMEOUT(titles(), QStringList(title("home", 50)), checkpointTimeout);
    QCOMPARE(program->said().count(title("home", 50).toUtf8()), 1);
}

void ConnrecordNotificationsTest::warnsWhenTheBusComes()
{
    m_desktop.reset();
    m_bus->kill();
    QVERIFY(QFile::remove(m_bus->socket()));
    addPlan("home", {50});
    const Program program = start();
    QTRY_VERIFY(program->said().contains("Connected"));
    QVERIFY(use(50));
    QTRY_VERIFY_WITH_TIMEOUT(program->said().contains(title("home", 50).toUtf8()),
                             checkpointTimeout);
    QVERIFY(m_bus->start());
    m_desktop = std::make_unique<NotificationDaemon>(m_bus->address());
    QVERIFY(m_desktop->takeName());
    QTRY_COMPARE_WITH_TIMEOUT(titles(), QStringList(title("home", 50)), checkpointTimeout);
}

void ConnrecordNotificationsTest::hasTheBusStartTheService()
{
    QVERIFY(m_desktop->giveNameAway());
    const QString sign = m_folder->filePath("started");
    QFile description(m_folder->filePath("notifications.service"));
    QVERIFY(description.open(QIODevice::WriteOnly));
    description.write("[D-BUS Service]\nName=org.freedesktop.Notifications\nExec=/usr/bin/touch " +
                      sign.toUtf8() + '\n');
    description.close();
    addPlan("home", {50});
    const Program program = start();
    QTRY_VERIFY(program->said().contains("Connected"));
    QVERIFY(!QFile::exists(sign));
    QVERIFY(use(50));
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(sign), checkpointTimeout);
    // What it has started is no service.
    QVERIFY(m_desktop->takeName());
    QTRY_COMPARE_WITH_TIMEOUT(titles(), QStringList(title("home", 50)), checkpointTimeout);
}

void ConnrecordNotificationsTest::warnsOnlyWhileThatIsWanted()
{
    choose("planWarnings=false");
    addPlan("home", {50, 100});
    const Program program = start();
    QTRY_VERIFY(program->said().contains("Connected"));
    for (const int percent : {50, 100}) {
        QVERIFY(use(50));
        QTRY_VERIFY_WITH_TIMEOUT(program->said().contains(title("home", percent).toUtf8()),
                                 checkpointTimeout);
    }
    QCOMPARE(titles(), QStringList());
    choose("planWarnings=true");
    QVERIFY(use(1));
    // Neither has been shown before, and the higher one is enough.
    QTRY_COMPARE_WITH_TIMEOUT(titles(), QStringList(title("home", 100)), checkpointTimeout);
}

void ConnrecordNotificationsTest::speaksTheLanguageOfTheUser_data()
{
    QTest::addColumn<QByteArray>("setting");
    QTest::addColumn<QString>("systemLanguage");
    QTest::addColumn<QString>("title");
    const QString german = QString::fromUtf8("50 % des Datentarifs „home“ verbraucht");
    QTest::newRow("the chosen one") << QByteArray("language=de") << "pl" << german;
    QTest::newRow("the system's") << QByteArray() << "de_AT" << german;
    QTest::newRow("one without texts") << QByteArray() << "fi" << title("home", 50);
}

/// The log is for those who help as well, and stays in English.
void ConnrecordNotificationsTest::speaksTheLanguageOfTheUser()
{
    QFETCH(QByteArray, setting);
    QFETCH(QString, systemLanguage);
    choose(setting);
    addPlan("home", {50, 100});
    const Program program = start(systemLanguage);
    QTRY_VERIFY(program->said().contains("Connected"));
    QVERIFY(use(60));
    QFETCH(QString, title);
    QTRY_COMPARE_WITH_TIMEOUT(titles(), QStringList(title), checkpointTimeout);
    QVERIFY(use(40));
    const QString log = ::title("home", 100);
    QTRY_VERIFY_WITH_TIMEOUT(program->said().contains(log.toUtf8()), checkpointTimeout);
}

NETWORK_TEST_MAIN(ConnrecordNotificationsTest)

#include "tst_connrecordnotifications.moc"
