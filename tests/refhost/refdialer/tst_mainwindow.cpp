// SPDX-License-Identifier: MIT
#include "CommonUtils.h"
#include "LanguageChoice.h"
#include "MainWindow.h"
#include "PluginHandle.h"
#include "RecordingPlugin.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using refhost::MainWindow;
using refhost::PluginHandle;

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void showsTheHistoryInItsArea();
    void fitsTheHistoryToItsAreaWhenResized();
    void hidesTheHistoryAndShowsItAgain();
    void showsTheNewestConnectionFirst();

    void speaksTheChosenLanguage();
    void remembersTheChosenLanguage();
    void startsInAKnownLanguageWhateverIsStored();
    void marksTheCurrentLanguage();
    void sendsNoTextEventWhenThePluginRefusesTheLanguage();
    void writesDatesAsTheLanguageDoes();

    void endsThePluginOnceWhenClosed();
    void endsThePluginOnceByTheQuitEntry();
    void endsThePluginOnceWhenDestroyed();
    void leavesThePluginAloneAfterItsEnd();

    void saysWhereTheHistoryComesFrom();

private:
    QAction *entry(int menu, const QString &text) const;
    int callsTo(const QString &operation) const { return int(m_calls.filter(operation).size()); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QStringList m_calls;
    RecordingPlugin *m_recording = nullptr;
    std::unique_ptr<PluginHandle> m_plugin;
    std::unique_ptr<MainWindow> m_window;
};

namespace
{

constexpr int fileMenu = 0;
constexpr int viewMenu = 1;
constexpr int languageMenu = 2;

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
    m_window = std::make_unique<MainWindow>(*m_plugin, refhost::HistorySource{});
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestMainWindow::cleanup()
{
    m_window.reset();
    m_plugin.reset();
}

QAction *TestMainWindow::entry(int menu, const QString &text) const
{
    for (QAction *const action : m_window->menuBar()->actions().at(menu)->menu()->actions()) {
        if (action->text().remove('&') == text)
            return action;
    }
    return nullptr;
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

void TestMainWindow::hidesTheHistoryAndShowsItAgain()
{
    QAction *const history = entry(viewMenu, "History");
    QVERIFY(history && history->isChecked());
    history->trigger();
    QCOMPARE(m_calls.last(), QString("Hide"));
    QVERIFY(!history->isChecked());
    history->trigger();
    QCOMPARE(m_calls.last(), "ShowWindow " + RecordingPlugin::textOf(m_recording->area()->rect()));
    QVERIFY(history->isChecked());
}

void TestMainWindow::showsTheNewestConnectionFirst()
{
    QList<int> days;
    for (int row = 0; row < 3; ++row)
        days.append(m_recording->table()->item(row, 1)->data(Qt::DisplayRole).toDate().day());
    QCOMPARE(days, QList<int>({30, 12, 2}));
    QVERIFY(!m_recording->table()->isSortingEnabled());
}

void TestMainWindow::speaksTheChosenLanguage()
{
    m_calls.clear();
    QVERIFY(entry(languageMenu, "Deutsch"));
    entry(languageMenu, "Deutsch")->trigger();
    QCOMPARE(m_calls, QStringList({"ChangeLang de, texts in de", "Notify 1024"}));
    QTRY_COMPARE(m_window->windowTitle(), QString("Verbindungsverlauf"));
    QVERIFY(entry(viewMenu, "Verlauf"));
    entry(languageMenu, "English")->trigger();
    QTRY_COMPARE(m_window->windowTitle(), QString("Connection history"));
}

void TestMainWindow::remembersTheChosenLanguage()
{
    entry(languageMenu, "Deutsch")->trigger();
    QCOMPARE(CommonUtils::GetSettings("refdialer", "language"), QString("de"));
    QCOMPARE(refhost::startLanguage(), QString("de"));
}

void TestMainWindow::startsInAKnownLanguageWhateverIsStored()
{
    refhost::storeLanguage("xx");
    QVERIFY(refhost::availableLanguages().contains(refhost::startLanguage()));
}

void TestMainWindow::marksTheCurrentLanguage()
{
    QVERIFY(entry(languageMenu, "English")->isChecked());
    entry(languageMenu, "Deutsch")->trigger();
    QVERIFY(entry(languageMenu, "Deutsch")->isChecked());
    QVERIFY(!entry(languageMenu, "English")->isChecked());
}

void TestMainWindow::sendsNoTextEventWhenThePluginRefusesTheLanguage()
{
    m_recording->refuseLanguages();
    entry(languageMenu, "Deutsch")->trigger();
    QCOMPARE(callsTo("ChangeLang"), 1);
    QCOMPARE(callsTo("Notify"), 0);
}

void TestMainWindow::writesDatesAsTheLanguageDoes()
{
    QCOMPARE(m_recording->table()->locale().language(), QLocale::English);
    entry(languageMenu, "Deutsch")->trigger();
    QTRY_COMPARE(m_recording->table()->locale().language(), QLocale::German);
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
    entry(fileMenu, "Quit")->trigger();
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
    QAction *const history = entry(viewMenu, "History");
    QAction *const german = entry(languageMenu, "Deutsch");
    m_window->close();
    m_calls.clear();
    history->trigger();
    history->trigger();
    german->trigger();
    m_recording->area()->resize(100, 100);
    m_window->show();
    QCOMPARE(m_calls, QStringList());
}

void TestMainWindow::saysWhereTheHistoryComesFrom()
{
    const QString file = m_folder->filePath("<b>connections.db");
    refhost::StateLine line({file, false});
    QCOMPARE(line.text(), "No connections recorded yet in " + file);
    QFile store(file);
    QVERIFY(store.open(QFile::WriteOnly));
    QCOMPARE(refhost::StateLine({file, false}).text(), "History in " + file);
    QCOMPARE(line.textFormat(), Qt::PlainText);

    refhost::StateLine sample({file, true});
    QVERIFY(sample.text().startsWith("Sample history."));
    QVERIFY(refhost::setLanguage("de"));
    QTRY_VERIFY(sample.text().startsWith("Beispielverlauf."));
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
