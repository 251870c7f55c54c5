// SPDX-License-Identifier: MIT
#include "HistoryWindow.h"

#include "apps/refdialer/TrueValues.h"
#include "refhost/libcore/Host.h"

#include <SQLiteCpp/Database.h>

#include <QSettings>
#include <QTableWidget>
#include <QTest>
#include <QWindow>

using history::Connection;
using history::Store;

Connection connection(const std::string &profile, int daysLater)
{
    constexpr std::int64_t day = 86400;
    Connection made;
    made.profile = profile;
    made.startUtc = firstDay + daysLater * day;
    made.endUtc = made.startUtc + 3725;
    made.connectedSeconds = 3725;
    made.uploadedBytes = 2048;
    made.downloadedBytes = 5 * 1024 * 1024;
    made.interfaceName = "wwan0";
    return made;
}

HistoryWindow::HistoryWindow()
    : m_storePath(m_folder.filePath("connections.db").toStdString())
    , m_service(DIALUP_SERVICE_FILE)
{
    qputenv("NETINFO_STORE", m_storePath.c_str());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
    refhost::setLanguage("en");
    refhost::setPluginContainer(&m_container);
}

HistoryWindow::~HistoryWindow()
{
    close();
    refhost::setPluginContainer(nullptr);
}

bool HistoryWindow::store(const std::vector<Connection> &connections) const
{
    auto opened = Store::openOrCreate(m_storePath);
    return opened && opened.value().addMissing(connections);
}

QStringList HistoryWindow::storedProfiles() const
{
    QStringList profiles;
    const auto opened = Store::openForReading(m_storePath);
    const auto connections = opened.value().list();
    for (const Connection &stored : connections.value())
        profiles.append(QString::fromStdString(stored.profile));
    return profiles;
}

QList<qint64> HistoryWindow::storedKeys() const
{
    QList<qint64> keys;
    const auto opened = Store::openForReading(m_storePath);
    const auto connections = opened.value().list();
    for (const Connection &stored : connections.value())
        keys.append(stored.key);
    return keys;
}

QString HistoryWindow::pluginFile()
{
    return QStringLiteral(PLUGIN_FILE);
}

bool HistoryWindow::runSql(const std::string &sql) const
{
    return SQLite::Database(m_storePath, SQLite::OPEN_READWRITE).tryExec(sql) == SQLite::OK;
}

bool HistoryWindow::open(bool hasDialupService)
{
    if (hasDialupService)
        m_container.add(m_service.classId(), m_service.root());
    auto values = refdialer::TrueValues::beginReading(m_storePath);
    m_plugin = refdialer::PluginHandle::load(pluginFile());
    if (!m_plugin->start())
        return false;
    m_window = std::make_unique<refdialer::MainWindow>(
        *m_plugin, refdialer::HistorySource{QString::fromStdString(m_storePath), false}, m_state,
        std::move(values));
    refhost::setMainWindow(m_window.get());
    m_window->show();
    return QTest::qWaitForWindowActive(m_window.get()) && m_window->findChild<QTableWidget *>();
}

void HistoryWindow::close()
{
    m_window.reset();
    m_plugin.reset();
}

QTableWidget &HistoryWindow::table() const
{
    return *m_window->findChild<QTableWidget *>();
}

QStringList HistoryWindow::column(int column) const
{
    QStringList texts;
    for (int row = 0; row < table().rowCount(); ++row)
        texts.append(table().item(row, column)->text());
    return texts;
}

void HistoryWindow::clickRow(int row, Qt::KeyboardModifiers modifiers) const
{
    const QRect cell = table().visualItemRect(table().item(row, 0));
    QTest::mouseClick(table().viewport(), Qt::LeftButton, modifiers, cell.center());
}

void HistoryWindow::pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(m_window->windowHandle(), key, modifiers);
}
