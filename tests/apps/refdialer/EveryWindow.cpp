// SPDX-License-Identifier: MIT
#include "EveryWindow.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTest>
#include <QTimer>

const QString profileForEveryWindow = QStringLiteral("internet.example");

namespace
{

constexpr qint64 much = 1023LL << 30;

/// What a modal window or a menu has opened.
QWidget *openedWindow()
{
    QWidget *const menu = QApplication::activePopupWidget();
    return menu ? menu : QApplication::activeModalWidget();
}

} // namespace

bool storeForEveryWindow(const HistoryWindow &history)
{
    const std::string profile = profileForEveryWindow.toStdString();
    history::Connection today = connection(profile, 0);
    today.startUtc = QDateTime(QDate::currentDate(), QTime(0, 0)).toSecsSinceEpoch();
    today.endUtc = today.startUtc + today.connectedSeconds;
    today.uploadedBytes = much / 2;
    today.downloadedBytes = much / 2;
    today.hours = {{today.startUtc, false, much / 4, much / 4},
                   {today.startUtc, true, much / 4, much / 4}};
    return history.store({connection(profile, 0), today});
}

bool makeItTheUsersOwn(const HistoryWindow &history, const QString &home)
{
    qputenv("HOME", home.toLocal8Bit());
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/dev/null");
    const QDir folder(home + "/.local/share/refdialer");
    return folder.mkpath(".") && QFile::link(QString::fromStdString(history.storePath()),
                                             folder.filePath("connections.db"));
}

void lookAtEveryWindow(HistoryWindow &history, const Look &look)
{
    lookAtEveryPage(history, look);
    lookAtEveryDialog(history, look);
    lookAtEveryPlan(history, look);
    lookAtEveryMessage(history, look);
}

void lookAtModal(const QString &name, const Look &look, const std::function<void()> &open)
{
    bool isSeen = false;
    QTimer whenOpen;
    QObject::connect(&whenOpen, &QTimer::timeout, &whenOpen, [&] {
        QWidget *const opened = openedWindow();
        if (!opened)
            return;
        whenOpen.stop();
        isSeen = true;
        look(name, *opened);
        opened->close();
    });
    whenOpen.start();
    open();
    QTRY_VERIFY2(isSeen, qPrintable(name));
}

void settle()
{
    // Each layout passes on to the one around it that a text has become longer.
    constexpr int nestedLayouts = 5;
    for (int i = 0; i < nestedLayouts; ++i)
        QCoreApplication::processEvents();
}

recorder::ConnectionState lastingConnection(qint64 id)
{
    recorder::ConnectionState state;
    state.id = id;
    state.profile = profileForEveryWindow;
    state.interfaceName = QStringLiteral("wwan%1").arg(id);
    state.since = QDateTime(QDate(2026, 12, 24), QTime(22, 30));
    state.uploadedBytes = much;
    state.uploadRate = 1023 << 20;
    state.downloadedBytes = much;
    state.downloadRate = 1023 << 20;
    return state;
}
