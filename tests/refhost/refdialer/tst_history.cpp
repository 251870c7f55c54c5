// SPDX-License-Identifier: MIT
#include "Host.h"
#include "MainWindow.h"
#include "PluginHandle.h"
#include "StatisticsStore.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <memory>

using refhost::Connection;
using refhost::MainWindow;
using refhost::PluginHandle;
using refhost::StatisticsStore;

/// The built plug-in in our window, on a real store.
class TestHistory : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void showsTheStoredConnectionsNewestFirst();
    void showsAnEmptyTableBeforeThereIsAStore();
    void speaksTheLanguageOfTheProgram();
    void deletesASelectedConnectionFromTheStore_data();
    void deletesASelectedConnectionFromTheStore();

private:
    void store(const std::vector<Connection> &connections);
    void open();
    QTableWidget *table() const { return m_window->findChild<QTableWidget *>(); }
    QString cell(int row, int column) const { return table()->item(row, column)->text(); }
    QStringList storedProfiles() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::string m_file;
    std::unique_ptr<PluginHandle> m_plugin;
    std::unique_ptr<MainWindow> m_window;
};

namespace
{

constexpr std::int64_t day = 86400;
/// 2026-09-01 00:00 UTC
constexpr std::int64_t firstDay = 1788220800;

Connection connection(const std::string &profile, int daysLater)
{
    Connection made;
    made.profile = profile;
    made.startUtc = firstDay + daysLater * day;
    made.endUtc = made.startUtc + 3725;
    made.connectedSeconds = 3725;
    made.uploadedBytes = 2048;
    made.downloadedBytes = 5242880;
    return made;
}

/// Answers the question that is about to be asked with this button.
void answerWith(const QString &button)
{
    QTimer::singleShot(0, qApp, [button] {
        auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        for (QAbstractButton *const candidate : box->buttons()) {
            if (candidate->text() == button)
                QTest::mouseClick(candidate, Qt::LeftButton);
        }
        box->close();
    });
}

} // namespace

void TestHistory::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath("connections.db").toStdString();
    qputenv("NETINFO_STORE", m_file.c_str());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder->path());
    QVERIFY(refhost::setLanguage("en"));
}

void TestHistory::cleanup()
{
    m_window.reset();
    m_plugin.reset();
}

void TestHistory::store(const std::vector<Connection> &connections)
{
    auto opened = StatisticsStore::openOrCreate(m_file);
    QVERIFY2(opened, opened ? "" : opened.error().message.c_str());
    QVERIFY(opened.value().addMissing(connections));
}

void TestHistory::open()
{
    m_plugin = PluginHandle::load(PLUGIN_FILE);
    QVERIFY(m_plugin->start());
    m_window = std::make_unique<MainWindow>(
        *m_plugin, refhost::HistorySource{QString::fromStdString(m_file), false});
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QVERIFY(table());
}

QStringList TestHistory::storedProfiles() const
{
    QStringList profiles;
    const auto opened = StatisticsStore::openForReading(m_file);
    const auto connections = opened.value().list();
    for (const Connection &stored : connections.value())
        profiles.append(QString::fromStdString(stored.profile));
    return profiles;
}

void TestHistory::showsTheStoredConnectionsNewestFirst()
{
    store({connection("first.example", 0), connection("third.example", 20),
           connection("second.example", 10)});
    open();
    QCOMPARE(table()->rowCount(), 3);
    QCOMPARE(cell(0, 0), QString("third.example"));
    QCOMPARE(cell(1, 0), QString("second.example"));
    QCOMPARE(cell(2, 0), QString("first.example"));
    QCOMPARE(table()->item(0, 1)->data(Qt::DisplayRole).toDateTime().toSecsSinceEpoch(),
             firstDay + 20 * day);
    QCOMPARE(cell(0, 3), QString("01:02:05"));
    QCOMPARE(cell(0, 4), QString("2.00 KB"));
    QCOMPARE(cell(0, 5), QString("5.00 MB"));
    QVERIFY(table()->isVisible());
}

void TestHistory::showsAnEmptyTableBeforeThereIsAStore()
{
    open();
    QCOMPARE(table()->rowCount(), 0);
    QCOMPARE(table()->horizontalHeaderItem(0)->text(), QString("Profile (APN)"));
    QVERIFY(!QFile::exists(QString::fromStdString(m_file)));
}

void TestHistory::speaksTheLanguageOfTheProgram()
{
    open();
    QCOMPARE(table()->horizontalHeaderItem(5)->text(), QString("Downloaded"));
    QVERIFY(refhost::setLanguage("de"));
    m_plugin->changeLanguage("de");
    QCOMPARE(table()->horizontalHeaderItem(5)->text(), QString("Empfangen"));
}

void TestHistory::deletesASelectedConnectionFromTheStore_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QStringList>("remaining");
    QTest::newRow("confirmed") << "OK" << QStringList{"first.example"};
    QTest::newRow("cancelled") << "Cancel" << QStringList{"first.example", "second.example"};
}

void TestHistory::deletesASelectedConnectionFromTheStore()
{
    QFETCH(QString, answer);
    QFETCH(QStringList, remaining);
    store({connection("first.example", 0), connection("second.example", 10)});
    open();
    table()->selectRow(0);
    table()->setFocus();
    answerWith(answer);
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Delete);
    QTRY_COMPARE(table()->rowCount(), int(remaining.size()));
    QCOMPARE(storedProfiles(), remaining);
}

QTEST_MAIN(TestHistory)
#include "tst_history.moc"
