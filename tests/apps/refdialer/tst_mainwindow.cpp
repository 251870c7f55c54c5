// SPDX-License-Identifier: MIT
#include "CommonUtils.h"
#include "MenuEntry.h"
#include "RecordingPlugin.h"
#include "apps/refdialer/LanguageChoice.h"
#include "apps/refdialer/LineState.h"
#include "apps/refdialer/MainWindow.h"
#include "apps/refdialer/PluginHandle.h"
#include "apps/refdialer/SettingsDialog.h"
#include "apps/refdialer/SortMenu.h"
#include "apps/refdialer/SummaryChoice.h"
#include "apps/refdialer/TrueValues.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <functional>
#include <memory>

using refdialer::MainWindow;
using refdialer::PluginHandle;

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void showsTheHistoryInItsArea();
    void fitsTheHistoryToItsAreaWhenResized();
    void showsTheNewestConnectionFirst();

    void sortsOnceAsChosen();
    void sortsInTheUsualDirectionOfAnotherColumn();
    void tellsThePluginOfConnections();

    void speaksTheLanguageOfTheSettings();
    void remembersTheChosenLanguage();
    void startsInAKnownLanguageWhateverIsStored();
    void saysThatALanguageIsNotReviewed();
    void remembersWhetherASummaryIsWanted();
    void saysWhenASettingCannotBeStored();
    void offersTheSummaryToANewUserOnly();
    void sendsNoTextEventWhenThePluginRefusesTheLanguage();
    void writesDatesAsTheLanguageDoes();

    void comesForwardEvenIfMinimized();
    void comesForwardWithItsDialog();

    void endsThePluginOnceWhenClosed();
    void endsThePluginOnceByTheQuitEntry();
    void endsThePluginOnceWhenDestroyed();
    void leavesThePluginAloneAfterItsEnd();

private:
    QAction *entry(const QStringList &path) const { return menuEntry(*m_window, path); }
    void openSettings(const std::function<void(refdialer::SettingsDialog &)> &step);
    int callsTo(const QString &operation) const { return int(m_calls.filter(operation).size()); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QStringList m_calls;
    RecordingPlugin *m_recording = nullptr;
    std::unique_ptr<PluginHandle> m_plugin;
    refdialer::LineState m_state;
    std::unique_ptr<MainWindow> m_window;
};

namespace
{

QList<int> daysIn(const QTableWidget &table)
{
    QList<int> days;
    for (int row = 0; row < table.rowCount(); ++row)
        days.append(table.item(row, 1)->data(Qt::DisplayRole).toDate().day());
    return days;
}

void chooseLanguage(refdialer::SettingsDialog &dialog, const QString &name)
{
    auto &box = *dialog.findChild<QComboBox *>();
    QTest::keyClicks(&box, name);
    QCOMPARE(box.currentText(), name);
}

void chooseGerman(refdialer::SettingsDialog &dialog)
{
    chooseLanguage(dialog, "Deutsch");
}

} // namespace

void TestMainWindow::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder->path());
    QVERIFY(refhost::setLanguage("en"));
    m_calls.clear();
    m_recording = new RecordingPlugin(m_calls);
    m_plugin = PluginHandle::adopt(m_recording);
    QVERIFY(m_plugin);
    m_window = std::make_unique<MainWindow>(*m_plugin, refdialer::HistorySource{}, m_state,
                                            refdialer::TrueValues::beginReading(std::string()));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestMainWindow::cleanup()
{
    m_window.reset();
    m_plugin.reset();
}

void TestMainWindow::showsTheHistoryInItsArea()
{
    QCOMPARE(callsTo("ShowWindow"), 1);
    QVERIFY(m_window->isAncestorOf(m_recording->area()));
    QVERIFY(m_recording->area()->isVisible());
}

void TestMainWindow::fitsTheHistoryToItsAreaWhenResized()
{
    m_window->resize(1000, 700);
    QTRY_VERIFY(m_recording->area()->width() > 900);
    QCOMPARE(m_calls.last(), "FitSize " + RecordingPlugin::textOf(m_recording->area()->rect()));
}

void TestMainWindow::showsTheNewestConnectionFirst()
{
    QCOMPARE(daysIn(*m_recording->table()), QList<int>({30, 12, 2}));
    QVERIFY(!m_recording->table()->isSortingEnabled());
}

void TestMainWindow::sortsOnceAsChosen()
{
    entry({"View", "Sort by", "Ascending"})->trigger();
    QCOMPARE(daysIn(*m_recording->table()), QList<int>({2, 12, 30}));
    QVERIFY(!m_recording->table()->isSortingEnabled());
}

void TestMainWindow::sortsInTheUsualDirectionOfAnotherColumn()
{
    QSignalSpy chosen(m_window->findChild<refdialer::SortMenu *>(),
                      &refdialer::SortMenu::orderChosen);
    const auto last = [&chosen] {
        const auto order = chosen.last().first().value<refdialer::HistoryOrder>();
        return QPair<int, Qt::SortOrder>(int(order.column), order.direction);
    };
    using Expected = QPair<int, Qt::SortOrder>;
    entry({"View", "Sort by", "Ascending"})->trigger();
    QCOMPARE(last(), Expected(1, Qt::AscendingOrder));
    entry({"View", "Sort by", "Start"})->trigger();
    QCOMPARE(last(), Expected(1, Qt::AscendingOrder));
    entry({"View", "Sort by", "End"})->trigger();
    QCOMPARE(last(), Expected(2, Qt::DescendingOrder));
    QVERIFY(entry({"View", "Sort by", "Descending"})->isChecked());
    entry({"View", "Sort by", "Profile"})->trigger();
    QCOMPARE(last(), Expected(0, Qt::AscendingOrder));
    QVERIFY(entry({"View", "Sort by", "Ascending"})->isChecked());
    entry({"View", "Sort by", "Duration"})->trigger();
    QCOMPARE(last(), Expected(3, Qt::DescendingOrder));
    entry({"View", "Sort by", "Uploaded"})->trigger();
    QCOMPARE(last(), Expected(4, Qt::DescendingOrder));
    entry({"View", "Sort by", "Downloaded"})->trigger();
    QCOMPARE(last(), Expected(5, Qt::DescendingOrder));
}

void TestMainWindow::tellsThePluginOfConnections()
{
    recorder::ConnectionState state;
    state.interfaceName = "wwan0";
    m_calls.clear();
    m_state.begin(state);
    QCOMPARE(m_calls, QStringList("Notify 1536, 1, 0"));
    m_state.end(state.id);
    QCOMPARE(m_calls, QStringList({"Notify 1536, 1, 0", "Notify 1536, 1, 0", "Notify 1536, 0, 0"}));
}

/// Opens the settings with their key, does the step there and closes them.
void TestMainWindow::openSettings(const std::function<void(refdialer::SettingsDialog &)> &step)
{
    // Nobody but a window manager does that after a dialog.
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    bool wasOpen = false;
    // Showing the dialog may handle events before it is there.
    QTimer whenOpen;
    connect(&whenOpen, &QTimer::timeout, this, [&step, &wasOpen, &whenOpen] {
        auto *const dialog =
            qobject_cast<refdialer::SettingsDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        whenOpen.stop();
        wasOpen = true;
        step(*dialog);
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    whenOpen.start();
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Comma, Qt::ControlModifier);
    QVERIFY(wasOpen);
}

void TestMainWindow::speaksTheLanguageOfTheSettings()
{
    openSettings([this](refdialer::SettingsDialog &dialog) {
        m_calls.clear();
        chooseGerman(dialog);
        QCOMPARE(m_calls, QStringList({"ChangeLang de, texts in de", "Notify 1024, 0, 0"}));
        QTRY_COMPARE(dialog.windowTitle(), QString("Einstellungen"));
        QCOMPARE(dialog.findChild<QPushButton *>()->text(), QString("S&chließen"));
        QTRY_COMPARE(m_window->windowTitle(), QString("Verbindungsverlauf"));
    });
    QVERIFY(entry({"Ansicht", "Verlauf"}));
    QVERIFY(entry({"Ansicht", "Sortieren nach", "Dauer"}));
    openSettings([this](refdialer::SettingsDialog &dialog) {
        QCOMPARE(dialog.findChild<QComboBox *>()->currentText(), QString("Deutsch"));
        chooseLanguage(dialog, "English");
        QTRY_COMPARE(m_window->windowTitle(), QString("Connection history"));
    });
}

void TestMainWindow::remembersTheChosenLanguage()
{
    openSettings(chooseGerman);
    QCOMPARE(CommonUtils::GetSettings("refdialer", "language"), QString("de"));
    QCOMPARE(refdialer::startLanguage(), QString("de"));
}

void TestMainWindow::startsInAKnownLanguageWhateverIsStored()
{
    refdialer::storeLanguage("xx");
    QVERIFY(refhost::availableLanguages().contains(refdialer::startLanguage()));
}

void TestMainWindow::saysThatALanguageIsNotReviewed()
{
    openSettings([](refdialer::SettingsDialog &dialog) {
        const auto isSaid = [&dialog](const QString &text) {
            const QList<QLabel *> labels = dialog.findChildren<QLabel *>();
            return std::any_of(labels.begin(), labels.end(), [&text](const QLabel *label) {
                return label->isVisible() && label->text().contains(text);
            });
        };
        QVERIFY(!isSaid("reviewed"));
        chooseGerman(dialog);
        QTRY_VERIFY(isSaid("noch nicht durchgesehen"));
    });
}

void TestMainWindow::remembersWhetherASummaryIsWanted()
{
    const auto toggle = [](refdialer::SettingsDialog &dialog) {
        QTest::keyClick(dialog.findChild<QCheckBox *>(), Qt::Key_Space);
    };
    QVERIFY(!refdialer::isSummaryWanted());
    openSettings(toggle);
    QCOMPARE(CommonUtils::GetSettings("NetInfoRecordUIPlugin", "WhetherShowNotesbox"),
             QString("true"));
    openSettings([](refdialer::SettingsDialog &dialog) {
        QVERIFY(dialog.findChild<QCheckBox *>()->isChecked());
    });
    openSettings(toggle);
    QCOMPARE(CommonUtils::GetSettings("NetInfoRecordUIPlugin", "WhetherShowNotesbox"),
             QString("false"));
}

void TestMainWindow::saysWhenASettingCannotBeStored()
{
    // A file where the settings' folder should be.
    QFile obstacle(QFileInfo(refhost::settingsFile()).path());
    QVERIFY(obstacle.open(QFile::WriteOnly));
    openSettings([](refdialer::SettingsDialog &dialog) {
        QTest::keyClick(dialog.findChild<QCheckBox *>(), Qt::Key_Space);
        QStringList shown;
        for (const QLabel *const label : dialog.findChildren<QLabel *>()) {
            if (label->isVisible())
                shown.append(label->text());
        }
        QVERIFY2(shown.join(' ').contains(refhost::settingsFile()), qPrintable(shown.join(' ')));
    });
}

void TestMainWindow::offersTheSummaryToANewUserOnly()
{
    refdialer::offerSummary();
    QVERIFY(refdialer::isSummaryWanted());
    QVERIFY(refdialer::storeSummaryChoice(false));
    refdialer::offerSummary();
    QVERIFY(!refdialer::isSummaryWanted());
}

void TestMainWindow::sendsNoTextEventWhenThePluginRefusesTheLanguage()
{
    m_recording->refuseLanguages();
    openSettings(chooseGerman);
    QCOMPARE(callsTo("ChangeLang"), 1);
    QCOMPARE(callsTo("Notify"), 0);
}

void TestMainWindow::writesDatesAsTheLanguageDoes()
{
    QCOMPARE(m_recording->table()->locale().language(), QLocale::English);
    openSettings(chooseGerman);
    QTRY_COMPARE(m_recording->table()->locale().language(), QLocale::German);
}

void TestMainWindow::comesForwardEvenIfMinimized()
{
    m_window->showMinimized();
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    m_window->comeForward();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QVERIFY(!m_window->isMinimized());
}

void TestMainWindow::comesForwardWithItsDialog()
{
    openSettings([this](refdialer::SettingsDialog &dialog) {
        m_window->activateWindow();
        m_window->comeForward();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
    });
}

void TestMainWindow::endsThePluginOnceWhenClosed()
{
    m_window->close();
    QCOMPARE(callsTo("OnDestroy"), 1);
    cleanup();
    QCOMPARE(callsTo("OnDestroy"), 1);
    QCOMPARE(m_calls.mid(m_calls.size() - 2), QStringList({"OnDestroy", "deleted"}));
}

void TestMainWindow::endsThePluginOnceByTheQuitEntry()
{
    entry({"File", "Quit"})->trigger();
    QVERIFY(!m_window->isVisible());
    cleanup();
    QCOMPARE(m_calls.mid(m_calls.size() - 2), QStringList({"OnDestroy", "deleted"}));
    QCOMPARE(callsTo("OnDestroy"), 1);
}

void TestMainWindow::endsThePluginOnceWhenDestroyed()
{
    cleanup();
    QCOMPARE(m_calls.mid(m_calls.size() - 2), QStringList({"OnDestroy", "deleted"}));
    QCOMPARE(callsTo("OnDestroy"), 1);
}

void TestMainWindow::leavesThePluginAloneAfterItsEnd()
{
    QAction *const history = entry({"View", "History"});
    QAction *const usage = entry({"View", "Usage"});
    QAction *const ascending = entry({"View", "Sort by", "Ascending"});
    m_window->close();
    m_calls.clear();
    usage->trigger();
    history->trigger();
    ascending->trigger();
    m_state.begin({});
    m_state.end(0);
    m_recording->area()->resize(100, 100);
    m_window->show();
    QCOMPARE(m_calls, QStringList());
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
