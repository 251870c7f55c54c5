// SPDX-License-Identifier: MIT
#include "HistoryWindow.h"
#include "PrivateBus.h"
#include "ScriptedSystemd.h"
#include "apps/refdialer/BackgroundUnit.h"
#include "apps/refdialer/SettingsDialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

using refdialer::BackgroundUnit;
using refdialer::SettingsDialog;
using Outcome = refdialer::BackgroundUnit::Outcome;

Q_DECLARE_METATYPE(refdialer::BackgroundUnit::Outcome)

namespace
{

QCheckBox *backgroundBox(const SettingsDialog &dialog)
{
    for (QCheckBox *const box : dialog.findChildren<QCheckBox *>()) {
        if (box->text() == "&Record in the background, also when this window is closed")
            return box;
    }
    return nullptr;
}

} // namespace

/// The service in the background as the window offers it, with a service manager of the
/// test's on the session bus.
class TestBackground : public QObject
{
    Q_OBJECT

public:
    explicit TestBackground(const QString &bus)
        : m_address(bus)
    {
    }

private slots:
    void init();
    void cleanup();

    void turnsTheServiceOn();
    void turnsTheServiceOff();
    void turnsOffWhatDoesNotRun();
    void saysWhyNot_data();
    void saysWhyNot();
    void saysThatItDidNotStart();
    void saysThatThereIsNoSystemd();
    void saysThatThereIsNoBus();

    void isOfferedWithoutConnections();
    void isASetting();
    void isNoSettingForAnotherHistory();

    void asksWhenAConnectionLasts();
    void staysOpenIfTheUserWantsThat();
    void closesWhenTheServiceRecords();
    void staysOpenWhenTheServiceDoesNotRecord();
    void remembersTheAnswer();
    void asksNothingIfNothingIsLost();

private:
    QString outcomeText(void (BackgroundUnit::*order)());
    void openWindow(const std::vector<history::Connection> &connections = {connection("a", 0)});
    void connectLine() { m_history->state().begin(lasting()); }
    static recorder::ConnectionState lasting();
    bool closeAnswering(const QString &button, bool isToBeRemembered = false);
    bool closeUnasked() { return m_history->window().close(); }

    const QString m_address;
    std::unique_ptr<ScriptedSystemd> m_systemd;
    std::unique_ptr<BackgroundUnit> m_unit;
    std::unique_ptr<HistoryWindow> m_history;
    std::unique_ptr<QTemporaryDir> m_home;
};

void TestBackground::init()
{
    qRegisterMetaType<Outcome>();
    m_home = std::make_unique<QTemporaryDir>();
    m_systemd = std::make_unique<ScriptedSystemd>(m_address);
    m_unit = std::make_unique<BackgroundUnit>(QDBusConnection::sessionBus());
    m_history = std::make_unique<HistoryWindow>();
}

void TestBackground::cleanup()
{
    m_history.reset();
    m_unit.reset();
    m_systemd.reset();
}

/// What the user is told in the end.
QString TestBackground::outcomeText(void (BackgroundUnit::*order)())
{
    QString text;
    const auto connection = connect(m_unit.get(), &BackgroundUnit::done, this,
                                    [&text](Outcome outcome, const QString &reason) {
                                        text = BackgroundUnit::textFor(outcome, reason);
                                    });
    (m_unit.get()->*order)();
    const bool isDone = QTest::qWaitFor([&text] { return !text.isEmpty(); });
    disconnect(connection);
    return isDone ? text : QString("nothing");
}

void TestBackground::turnsTheServiceOn()
{
    QVERIFY(outcomeText(&BackgroundUnit::turnOn).contains("is enabled and runs"));
    QVERIFY(m_systemd->isEnabled && m_systemd->isRunning);
    QCOMPARE(m_systemd->calls,
             QStringList({"Subscribe", "EnableUnitFiles connrecord.service false false", "Reload",
                          "StartUnit connrecord.service replace"}));
}

void TestBackground::turnsTheServiceOff()
{
    m_systemd->isEnabled = m_systemd->isRunning = true;
    QVERIFY(outcomeText(&BackgroundUnit::turnOff).contains("is disabled and has been stopped"));
    QVERIFY(!m_systemd->isEnabled && !m_systemd->isRunning);
    QCOMPARE(m_systemd->calls, QStringList({"DisableUnitFiles connrecord.service false", "Reload",
                                            "StopUnit connrecord.service replace"}));
}

void TestBackground::turnsOffWhatDoesNotRun()
{
    m_systemd->errors = {{"StopUnit", "org.freedesktop.systemd1.NoSuchUnit"}};
    QVERIFY(outcomeText(&BackgroundUnit::turnOff).contains("is disabled"));
}

void TestBackground::saysWhyNot_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("text");
    const QString missing = "org.freedesktop.DBus.Error.FileNotFound";
    QTest::newRow("no file") << "EnableUnitFiles" << missing << "is not installed";
    QTest::newRow("no unit") << "StartUnit"
                             << "org.freedesktop.systemd1.NoSuchUnit"
                             << "is not installed";
    QTest::newRow("masked") << "EnableUnitFiles"
                            << "org.freedesktop.systemd1.UnitMasked"
                            << "systemd has refused: It is said to fail.";
    QTest::newRow("read-only") << "Reload"
                               << "org.freedesktop.DBus.Error.AccessDenied"
                               << "systemd has refused: It is said to fail.";
}

void TestBackground::saysWhyNot()
{
    QFETCH(const QString, method);
    QFETCH(const QString, error);
    QFETCH(const QString, text);
    m_systemd->errors = {{method, error}};
    const QString told = outcomeText(&BackgroundUnit::turnOn);
    QVERIFY2(told.contains(text), qPrintable(told));
}

void TestBackground::saysThatItDidNotStart()
{
    m_systemd->canStart = false;
    QVERIFY(outcomeText(&BackgroundUnit::turnOn).contains("did not start"));
}

void TestBackground::saysThatThereIsNoSystemd()
{
    m_systemd.reset();
    QVERIFY(outcomeText(&BackgroundUnit::turnOn).contains("no systemd"));
    QVERIFY(outcomeText(&BackgroundUnit::turnOff).contains("no systemd"));
}

void TestBackground::saysThatThereIsNoBus()
{
    m_unit = std::make_unique<BackgroundUnit>(QDBusConnection("no such connection"));
    QVERIFY(outcomeText(&BackgroundUnit::turnOn).contains("no systemd"));
}

void TestBackground::isASetting()
{
    m_systemd->isEnabled = true;
    SettingsDialog dialog(m_unit.get());
    QCheckBox *const box = backgroundBox(dialog);
    QVERIFY(box);
    const auto says = [&dialog](const QString &text) {
        const auto labels = dialog.findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(), [&text](const QLabel *label) {
            return !label->isHidden() && label->text().contains(text);
        });
    };
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTRY_VERIFY(box->isChecked());
    box->setFocus();
    box->click();
    box->click(); // while the service is being stopped, which is not undone
    QVERIFY(box->hasFocus() && !box->isChecked());
    QTRY_VERIFY(says("has been stopped"));
    QVERIFY(!m_systemd->isEnabled);
    QTRY_VERIFY(!box->isChecked());
    m_systemd->errors = {{"EnableUnitFiles", "org.freedesktop.DBus.Error.FileNotFound"}};
    box->click();
    QTRY_VERIFY(says("is not installed"));
    // It shows what is so.
    QTRY_VERIFY(!box->isChecked());
    m_systemd->errors.clear();
    box->click();
    QTRY_VERIFY(says("is enabled and runs"));
    QTRY_VERIFY(box->isChecked());
    QVERIFY(m_systemd->isRunning);
}

void TestBackground::isOfferedWithoutConnections()
{
    openWindow({});
    QPushButton *offer = nullptr;
    for (auto *const each : m_history->window().findChildren<QPushButton *>()) {
        if (each->text() == "&Record in the background")
            offer = each;
    }
    QVERIFY(offer);
    QTRY_VERIFY(offer->isVisible());
    QString told;
    QTimer whenTold;
    connect(&whenTold, &QTimer::timeout, this, [&told] {
        if (auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            told = box->text();
            box->close();
        }
    });
    whenTold.start();
    offer->click();
    QTRY_VERIFY2(told.contains("is enabled and runs"), qPrintable(told));
    QVERIFY(m_systemd->isEnabled && m_systemd->isRunning);
    QVERIFY(!offer->isVisible());
}

void TestBackground::isNoSettingForAnotherHistory()
{
    const SettingsDialog dialog(nullptr);
    const auto labels = dialog.findChildren<QLabel *>();
    QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
        return label->text().contains("into your own history, not into the one");
    }));
    QVERIFY(!backgroundBox(dialog)->isEnabled());
}

/// On what counts as the user's own history.
void TestBackground::openWindow(const std::vector<history::Connection> &connections)
{
    qputenv("HOME", m_home->path().toLocal8Bit());
    const QString folder = m_home->filePath(".local/share/refdialer");
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(m_history->store(connections));
    QVERIFY(
        QFile::link(QString::fromStdString(m_history->storePath()), folder + "/connections.db"));
    QVERIFY(m_history->open());
    m_history->state().setWatched(true);
}

recorder::ConnectionState TestBackground::lasting()
{
    recorder::ConnectionState state;
    state.id = 1;
    state.profile = "internet.example";
    return state;
}

/// Whether the window has closed at once; the question must have come.
bool TestBackground::closeAnswering(const QString &button, bool isToBeRemembered)
{
    bool wasAsked = false;
    QTimer whenAsked;
    connect(&whenAsked, &QTimer::timeout, this, [&] {
        auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        whenAsked.stop();
        wasAsked = true;
        box->checkBox()->setChecked(isToBeRemembered);
        for (QAbstractButton *const each : box->buttons()) {
            if (each->text() == button)
                each->click();
        }
    });
    whenAsked.start();
    const bool isClosed = m_history->window().close();
    if (!wasAsked)
        QTest::qFail("It was not asked.", __FILE__, __LINE__);
    return isClosed;
}

void TestBackground::asksWhenAConnectionLasts()
{
    openWindow();
    connectLine();
    QVERIFY(closeAnswering("&Stop recording"));
    QVERIFY(m_systemd->calls.isEmpty());
}

void TestBackground::staysOpenIfTheUserWantsThat()
{
    openWindow();
    connectLine();
    QVERIFY(!closeAnswering("&Cancel", true));
    QVERIFY(m_history->window().isVisible());
    // That is nothing to remember.
    QVERIFY(closeAnswering("&Stop recording"));
}

void TestBackground::closesWhenTheServiceRecords()
{
    openWindow();
    connectLine();
    QVERIFY(!closeAnswering("Record in the &background"));
    QTRY_VERIFY(!m_history->window().isVisible());
    QVERIFY(m_systemd->isEnabled && m_systemd->isRunning);
}

void TestBackground::staysOpenWhenTheServiceDoesNotRecord()
{
    m_systemd->canStart = false;
    openWindow();
    connectLine();
    QVERIFY(!closeAnswering("Record in the &background", true));
    const auto warning = [] {
        return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    };
    QString told;
    QTimer whenTold;
    connect(&whenTold, &QTimer::timeout, this, [&] {
        if (!warning())
            return;
        whenTold.stop();
        told = warning()->text();
        warning()->close();
    });
    whenTold.start();
    QTRY_VERIFY2(told.contains("did not start"), qPrintable(told));
    QVERIFY(m_history->window().isVisible());
    // Else it could never be closed.
    QVERIFY(closeAnswering("&Stop recording"));
}

void TestBackground::remembersTheAnswer()
{
    openWindow();
    connectLine();
    QVERIFY(closeAnswering("&Stop recording", true));
    m_history->window().show();
    QVERIFY(closeUnasked());
}

void TestBackground::asksNothingIfNothingIsLost()
{
    openWindow();
    QVERIFY(closeUnasked());
    m_history->window().show();
    m_history->state().setWatched(false);
    m_history->state().follow({true, QString(), {lasting()}});
    QCOMPARE(m_history->state().connections().size(), 1);
    QVERIFY(closeUnasked());
}

int main(int argc, char **argv)
{
    const QTemporaryDir folder;
    PrivateBus bus(folder.path());
    if (!bus.start())
        return 1;
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
    const QApplication application(argc, argv);
    TestBackground test(bus.address());
    return QTest::qExec(&test, argc, argv);
}

#include "tst_background.moc"
