// SPDX-License-Identifier: MIT
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// Hosts that end in every ordinary way: none crashes, and nothing of the plug-in logs
/// once the host's own end has begun. A sanitized build also finds what stays behind.
class tst_EndOfProcess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isQuiet_data();
    void isQuiet();

private:
    static QProcessEnvironment quietQt(const QTemporaryDir &runtime);
};

/// Qt says nothing of its own before the plug-in is loaded, as on a desktop: what it
/// has logged once would hide what the plug-in does last.
QProcessEnvironment tst_EndOfProcess::quietQt(const QTemporaryDir &runtime)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime.path()); // mode 0700
    return environment;
}

void tst_EndOfProcess::isQuiet_data()
{
    QTest::addColumn<QString>("ending");
    for (const char *ending :
         {"return", "exit-after-OnDestroy", "exit-without-OnDestroy", "static-application",
          "undeleted-application", "load-before-application", "static-window", "unload",
          "unload-without-OnDestroy", "dlclose"})
        QTest::newRow(ending) << QString::fromLatin1(ending);
}

void tst_EndOfProcess::isQuiet()
{
    QFETCH(QString, ending);
    const QTemporaryDir runtime;
    QVERIFY(runtime.isValid());
    QProcess host;
    host.setProcessEnvironment(quietQt(runtime));
    host.start(QStringLiteral(HOST_FILE), {QStringLiteral(PLUGIN_FILE), ending});
    QVERIFY(host.waitForFinished());
    const QByteArray said = host.readAllStandardError();
    QVERIFY2(host.exitStatus() == QProcess::NormalExit, said.right(2000));
    QVERIFY2(host.exitCode() == 0, said.right(2000));

    const QList<QByteArray> lines = said.split('\n');
    const auto begin = lines.indexOf("the host ends");
    QVERIFY(begin > 0);
    QCOMPARE(lines.mid(begin + 1), QList<QByteArray>{QByteArray()});
}

QTEST_GUILESS_MAIN(tst_EndOfProcess)
#include "tst_endofprocess.moc"
