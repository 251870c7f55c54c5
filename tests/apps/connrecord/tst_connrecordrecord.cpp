// SPDX-License-Identifier: MIT
#include "ConnrecordRun.h"
#include "NetworkTest.h"
#include "RecordingProgram.h"
#include "ServiceManager.h"

#include <QDir>
#include <QFile>

#include <csignal>

/// The command that records, with real interfaces in a network of this test's own.
class ConnrecordRecordTest : public QObject
{
    Q_OBJECT

public:
    explicit ConnrecordRecordTest(const QString &obstacle)
        : m_obstacle(obstacle)
    {
    }

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void recordsToTheByteAndSaysSo();
    void leavesWhatLastsToTheNextOne_data();
    void leavesWhatLastsToTheNextOne();
    void recordsANamedInterfaceUnderTheProfile();
    void recordsTheInterfacesOfTheSettings();
    void takesOverFromAnotherRecorder();
    void tellsTheServiceManager_data();
    void tellsTheServiceManager();
    void needsNoWindow();
    void refusesWhatCannotBe_data();
    void refusesWhatCannotBe();

private:
    QStringList arguments(const QStringList &options = {}) const;

    const QString m_obstacle;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    std::optional<VethPair> m_line;
};

void ConnrecordRecordTest::initTestCase()
{
    if (!m_obstacle.isEmpty())
        QSKIP(qPrintable(m_obstacle), "");
}

void ConnrecordRecordTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath("connections.db");
    m_line.emplace();
    QVERIFY(m_line->isMade());
}

void ConnrecordRecordTest::cleanup()
{
    m_line.reset();
    m_folder.reset();
}

QStringList ConnrecordRecordTest::arguments(const QStringList &options) const
{
    return QStringList({"--store", m_path, "record"}) + options;
}

void ConnrecordRecordTest::recordsToTheByteAndSaysSo()
{
    RecordingProgram program(arguments());
    QTRY_COMPARE(program.said(), recording);
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(program.said(), recording + "connrecord: Connected: wwan0.\n");
    QVERIFY(m_line->upload(4, 200));
    QVERIFY(m_line->download(3, 100));
    QVERIFY(m_line->goDown());
    QTRY_VERIFY(program.said().contains("Ended"));
    const qint64 sent = VethPair::bytesOf(4, 200);
    const qint64 received = VethPair::bytesOf(3, 100);
    QVERIFY2(program.said().contains("connrecord: Ended: wwan0, " + QByteArray::number(sent) +
                                     " bytes sent, " + QByteArray::number(received) +
                                     " bytes received, "),
             program.said());
    QCOMPARE(recordsIn(m_path), QStringList(record("wwan0", sent, received)));
    QCOMPARE(program.said().count('\n'), 3);
}

void ConnrecordRecordTest::leavesWhatLastsToTheNextOne_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
}

void ConnrecordRecordTest::leavesWhatLastsToTheNextOne()
{
    QFETCH(int, signal);
    {
        RecordingProgram program(arguments());
        QTRY_COMPARE(program.said(), recording);
        QVERIFY(m_line->goUp());
        QTRY_VERIFY(program.said().contains("Connected"));
        QVERIFY(m_line->upload(4, 200));
        QCOMPARE(program.exitCodeAfter(signal), 0);
    }
    QVERIFY(recordsIn(m_path).isEmpty());
    QCOMPARE(openRowsIn(m_path).front().uploadedBytes, std::int64_t{VethPair::bytesOf(4, 200)});
    QVERIFY(m_line->upload(2, 100));
    RecordingProgram next(arguments());
    QTRY_VERIFY(next.said().contains("Connected"));
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(
        recordsIn(m_path),
        QStringList(record("wwan0", VethPair::bytesOf(4, 200) + VethPair::bytesOf(2, 100), 0)));
}

void ConnrecordRecordTest::recordsANamedInterfaceUnderTheProfile()
{
    RecordingProgram program(
        arguments({"--interface", "far0", "--interface=usb0", "--profile", "internet.example"}));
    QTRY_COMPARE(program.said(), recording);
    QVERIFY(m_line->goUp());
    QTRY_VERIFY(program.said().contains("Connected: internet.example (far0).\n"));
    QTRY_VERIFY(program.said().contains("Connected: internet.example (wwan0).\n"));
    QCOMPARE(openRowsIn(m_path).front().profile, std::string("internet.example"));
}

void ConnrecordRecordTest::recordsTheInterfacesOfTheSettings()
{
    QVERIFY(QDir(m_folder->path()).mkpath("refdialer"));
    QFile settings(m_folder->filePath("refdialer/refdialer.conf"));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write("[refdialer]\ninterfaces=far0 no/interface\n");
    settings.close();
    RecordingProgram program(arguments(), {{"XDG_CONFIG_HOME", m_folder->path()}});
    QTRY_COMPARE(program.said(), recording);
    QVERIFY(m_line->goUp());
    QTRY_VERIFY(program.said().contains("Connected: far0.\n"));
    QTRY_VERIFY(program.said().contains("Connected: wwan0.\n"));
}

void ConnrecordRecordTest::takesOverFromAnotherRecorder()
{
    RecordingProgram first(arguments());
    QTRY_COMPARE(first.said(), recording);
    RecordingProgram second(arguments());
    QTRY_COMPARE(second.said(), "connrecord: Connections are recorded by another connrecord "
                                "(process " +
                                    QByteArray::number(first.process()) +
                                    ") already; this one records them when that one has "
                                    "ended.\n");
    QCOMPARE(first.exitCodeAfter(SIGTERM), 0);
    QTRY_VERIFY(second.said().contains(recording));
}

void ConnrecordRecordTest::tellsTheServiceManager_data()
{
    QTest::addColumn<bool>("isAbstract");
    QTest::newRow("by a file") << false;
    QTest::newRow("by a name alone") << true;
}

void ConnrecordRecordTest::tellsTheServiceManager()
{
    QFETCH(bool, isAbstract);
    ServiceManager manager((isAbstract ? QStringLiteral("@") : QString()) +
                           m_folder->filePath("notify"));
    RecordingProgram program(arguments(), {{"NOTIFY_SOCKET", manager.name()}});
    QTRY_VERIFY(manager.heard().contains("READY=1"));
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(manager.heard().last(), QString("STATUS=Recording; connections that last: 1."));
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(manager.heard().last(), QString("STATUS=Recording; connections that last: 0."));
    QVERIFY(manager.heard().filter("STOPPING").isEmpty());
    QCOMPARE(program.exitCodeAfter(SIGTERM), 0);
    QCOMPARE(manager.heard().last(), QString("STOPPING=1\nSTATUS="));
}

void ConnrecordRecordTest::needsNoWindow()
{
    RecordingProgram program(arguments());
    QTRY_COMPARE(program.said(), recording);
    const QByteArray maps = readFile(QStringLiteral("/proc/%1/maps").arg(program.process()));
    QVERIFY(maps.contains("Core.so"));
    QVERIFY(!maps.contains("Gui.so"));
    QVERIFY(!maps.contains("Widgets.so"));
}

void ConnrecordRecordTest::refusesWhatCannotBe_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("store");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QByteArray>("error");
    const QString store = QStringLiteral("connections.db");
    QTest::newRow("an impossible interface")
        << QStringList({"--interface", "wwan/0"}) << store << 2
        << QByteArray("There can be no network interface \"wwan/0\"");
    QTest::newRow("no profile") << QStringList({"--profile", ""}) << store << 2
                                << QByteArray("the name is empty");
    QTest::newRow("an argument") << QStringList("wwan0") << store << 2 << QByteArray("wwan0");
    QTest::newRow("no history") << QStringList() << QStringLiteral("notes") << 3
                                << QByteArray("is not a connection history");
}

void ConnrecordRecordTest::refusesWhatCannotBe()
{
    QFETCH(QStringList, options);
    QFETCH(QString, store);
    QFETCH(QByteArray, error);
    writeFile(m_folder->filePath("notes"), "some notes, which are no history at all");
    m_path = m_folder->filePath(store);
    const ConnrecordRun run = connrecord(arguments(options));
    QTEST(run.exitCode, "exitCode");
    QVERIFY2(run.error.contains(error), run.error);
    QCOMPARE(readFile(m_folder->filePath("notes")),
             QByteArray("some notes, which are no history at all"));
}

NETWORK_TEST_MAIN(ConnrecordRecordTest)

#include "tst_connrecordrecord.moc"
