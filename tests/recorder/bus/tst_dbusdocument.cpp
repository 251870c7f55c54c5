// SPDX-License-Identifier: MIT
#include "ServiceTest.h"

#include <QProcess>

using recorder::RecorderService;

namespace
{

/// The first example of the document, for the names that this build has.
QString exampleIn(const QString &document)
{
    QFile file(document);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    static const QRegularExpression block("```sh\n(.*?)```",
                                          QRegularExpression::DotMatchesEverythingOption);
    return block.match(QString::fromUtf8(file.readAll()))
        .captured(1)
        .replace("org.example.ConnectionRecorder1", RecorderService::interfaceName())
        .replace("/org/example/ConnectionRecorder1", RecorderService::objectPath());
}

} // namespace

/// What the document of the interface shows.
class TestDBusDocument : public ServiceTest
{
    Q_OBJECT

private slots:
    void showsCommandsThatWork();

private:
    /// Output and messages of the commands.
    QString run(const QString &commands);
};

/// Lets the service answer meanwhile.
QString TestDBusDocument::run(const QString &commands)
{
    QProcess shell;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SESSION_BUS_ADDRESS", m_bus->address());
    shell.setProcessEnvironment(environment);
    shell.setProcessChannelMode(QProcess::MergedChannels);
    shell.start("sh", {"-euc", commands});
    const bool hasEnded =
        QTest::qWaitFor([&] { return shell.state() == QProcess::NotRunning; }, 30000);
    return hasEnded && shell.exitCode() == 0 ? QString::fromUtf8(shell.readAll())
                                             : "failed: " + QString::fromUtf8(shell.readAll());
}

void TestDBusDocument::showsCommandsThatWork()
{
    const QString example = exampleIn(DOCUMENT);
    QCOMPARE(example.count('\n'), 3);
    // The name of the example is that of the history in the home folder.
    qputenv("HOME", m_folder->path().toLocal8Bit());
    const QString folder = m_folder->path() + "/.local/share/refdialer";
    QVERIFY(QDir().mkpath(folder));
    m_path = folder + "/connections.db";
    publish();
    connectLink(7, "ppp0", 100, 200);
    move(1100, 5200);
    QTRY_COMPARE(m_client->connections().value(0).value("UploadedBytes").toLongLong(), 1000);
    const QString output = run(example);
    const QStringList lines = output.split('\n');
    QVERIFY2(lines.size() == 5, qPrintable(output));
    QCOMPARE(lines[0], QString("b true"));
    QCOMPARE(lines[1], QString("s \"\""));
    QVERIFY2(lines[2].startsWith("aa{sv} 1 13 ") && lines[2].contains("\"UploadedBytes\" x 1000"),
             qPrintable(output));
    QVERIFY2(lines[3].contains("'Interface': <'ppp0'>") && lines[3].contains("'Recording': <true>"),
             qPrintable(output));
}

QTEST_GUILESS_MAIN(TestDBusDocument)
#include "tst_dbusdocument.moc"
