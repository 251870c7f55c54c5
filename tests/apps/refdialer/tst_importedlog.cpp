// SPDX-License-Identifier: MIT
#include "apps/refdialer/PluginHandle.h"
#include "refhost/libcore/Host.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// A real system log on its way: connrecord imports it, connrecord lists it, the
/// plug-in shows it. Two modems dial at once, one of them twice.
class TestImportedLog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void isListedExactly();
    void isShownExactly();
    void addsNothingTheSecondTime();

private:
    QByteArray connrecord(const QStringList &arguments);

    QTemporaryDir m_folder;
};

namespace
{

const char logText[] =
    "Nov 10 16:59:01 gate daemon.notice pppd[485]: pppd 2.4.9 started by root, uid 0\n"
    "Nov 10 16:59:02 gate daemon.notice pppd[512]: pppd 2.4.9 started by root, uid 0\n"
    "Nov 10 16:59:03 gate local2.info chat[490]: send (AT+CGDCONT=1,\"IP\",\"first.example\"^M)\n"
    "Nov 10 16:59:04 gate local2.info chat[513]: send (AT+CGDCONT=1,\"IP\",\"second.example\"^M)\n"
    "Nov 10 16:59:05 gate daemon.notice pppd[512]: Connect: ppp1 <--> /dev/ttyUSB3\n"
    "Nov 10 16:59:06 gate daemon.notice pppd[485]: Connect: ppp0 <--> /dev/ttyUSB0\n"
    "Nov 10 16:59:07 gate daemon.notice pppd[512]: local  IP address 192.0.2.2\n"
    "Nov 10 16:59:08 gate daemon.notice pppd[485]: local  IP address 192.0.2.1\n"
    "Nov 10 17:11:26 gate daemon.info pppd[485]: Connect time 12.3 minutes.\n"
    "Nov 10 17:11:26 gate daemon.info pppd[485]: Sent 31981 bytes, received 20722 bytes.\n"
    "Nov 10 17:11:30 gate daemon.notice pppd[485]: Connect: ppp0 <--> /dev/ttyUSB0\n"
    "Nov 10 17:11:32 gate daemon.notice pppd[485]: local  IP address 192.0.2.1\n"
    "Nov 11 18:12:32 gate daemon.info pppd[485]: Connect time 1501.0 minutes.\n"
    "Nov 11 18:12:32 gate daemon.info pppd[485]: Sent 4294967295 bytes, received 1 bytes.\n"
    "Nov 11 18:59:07 gate daemon.info pppd[512]: Connect time 1560.0 minutes.\n"
    "Nov 11 18:59:07 gate daemon.info pppd[512]: Sent 0 bytes, received 1048576 bytes.\n";

struct Expected {
    QString profile;
    QString interface;
    QDateTime start;
    QDateTime end;
    int seconds;
    qint64 uploaded;
    qint64 downloaded;
    QStringList texts; // connected time and volumes, as the window shows them
};

QVector<Expected> expected()
{
    const int year = QDate::currentDate() < QDate(QDate::currentDate().year(), 11, 12)
                         ? QDate::currentDate().year() - 1
                         : QDate::currentDate().year();
    const auto at = [year](int day, int hour, int minute, int second) {
        return QDateTime(QDate(year, 11, day), QTime(hour, minute, second));
    };
    return {{"second.example",
             "ppp1",
             at(10, 16, 59, 7),
             at(11, 18, 59, 7),
             93600,
             0,
             1048576,
             {"26:00:00", "0.00 KB", "1.00 MB"}},
            {"first.example",
             "ppp0",
             at(10, 16, 59, 8),
             at(10, 17, 11, 26),
             738,
             31981,
             20722,
             {"00:12:18", "31.23 KB", "20.24 KB"}},
            {"first.example",
             "ppp0",
             at(10, 17, 11, 32),
             at(11, 18, 12, 32),
             90060,
             4294967295,
             1,
             {"25:01:00", "4.00 GB", "0.00 KB"}}};
}

} // namespace

QByteArray TestImportedLog::connrecord(const QStringList &arguments)
{
    QProcess program;
    program.start(CONNRECORD, arguments);
    if (!program.waitForFinished() || program.exitCode() != 0)
        qFatal("%s", program.readAllStandardError().constData());
    return program.readAllStandardOutput();
}

void TestImportedLog::initTestCase()
{
    qputenv("NETINFO_STORE", m_folder.filePath("connections.db").toLocal8Bit());
    QFile log(m_folder.filePath("syslog"));
    QVERIFY(log.open(QIODevice::WriteOnly));
    log.write(logText);
    log.close();
    connrecord({"import", "--format", "pppd", log.fileName()});
}

void TestImportedLog::isListedExactly()
{
    const QJsonArray list = QJsonDocument::fromJson(connrecord({"list", "--json"})).array();
    QCOMPARE(list.size(), 3);
    for (int i = 0; i < 3; ++i) {
        const QJsonObject listed = list.at(i).toObject();
        const Expected wanted = expected().at(i);
        QCOMPARE(listed.value("profile").toString(), wanted.profile);
        QCOMPARE(listed.value("interface").toString(), wanted.interface);
        QCOMPARE(QDateTime::fromString(listed.value("start").toString(), Qt::ISODate),
                 wanted.start.toUTC());
        QCOMPARE(QDateTime::fromString(listed.value("end").toString(), Qt::ISODate),
                 wanted.end.toUTC());
        QCOMPARE(listed.value("connected_seconds").toInt(), wanted.seconds);
        QCOMPARE(listed.value("uploaded_bytes").toVariant().toLongLong(), wanted.uploaded);
        QCOMPARE(listed.value("downloaded_bytes").toVariant().toLongLong(), wanted.downloaded);
    }
}

void TestImportedLog::isShownExactly()
{
    QWidget area;
    area.resize(760, 300);
    const auto plugin = refdialer::PluginHandle::load(PLUGIN_FILE);
    QVERIFY(plugin->start());
    plugin->showIn(&area);
    auto *const table = area.findChild<QTableWidget *>();
    QVERIFY(table);
    table->sortItems(1, Qt::AscendingOrder);
    QCOMPARE(table->rowCount(), 3);
    for (int row = 0; row < 3; ++row) {
        const Expected wanted = expected().at(row);
        QCOMPARE(table->item(row, 0)->text(), wanted.profile);
        QCOMPARE(table->item(row, 1)->data(Qt::DisplayRole).toDateTime(), wanted.start);
        QCOMPARE(table->item(row, 2)->data(Qt::DisplayRole).toDateTime(), wanted.end);
        for (int column = 3; column < 6; ++column)
            QCOMPARE(table->item(row, column)->text(), wanted.texts.at(column - 3));
    }
}

void TestImportedLog::addsNothingTheSecondTime()
{
    const QByteArray before = connrecord({"export"});
    connrecord({"import", "--format", "pppd", m_folder.filePath("syslog")});
    QCOMPARE(connrecord({"export"}), before);
}

QTEST_MAIN(TestImportedLog)
#include "tst_importedlog.moc"
