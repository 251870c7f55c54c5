// SPDX-License-Identifier: MIT
#include "CommonUtils.h"
#include "Controls.h"
#include "HistoryWindow.h"
#include "MenuEntry.h"
#include "apps/common/RecordingChoices.h"
#include "apps/refdialer/HelpMenu.h"
#include "apps/refdialer/HistoryArea.h"
#include "apps/refdialer/LanguageChoice.h"
#include "apps/refdialer/ListChoice.h"
#include "apps/refdialer/RecordingSettings.h"
#include "apps/refdialer/SettingsDialog.h"
#include "apps/refdialer/StateLine.h"
#include "apps/refdialer/SumLabel.h"
#include "apps/refdialer/WindowView.h"
#include "refhost/libcore/Host.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QSet>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <cstdlib>
#include <functional>
#include <memory>

using refdialer::HistoryColumn;
using refdialer::SettingsDialog;
using refdialer::WindowView;

/// What the window's own controls do, and that everybody can reach them.
class TestWindowControls : public QObject
{
    Q_OBJECT

public slots:
    void noteUrl(const QUrl &url) { m_openedUrls.append(url); }

private slots:
    void init();
    void cleanup() { m_history.reset(); }

    void opensTheManual();
    void saysVersionAndLicences();

    void remembersInterfaces();
    void refusesWhatNamesNoInterface();
    void readsInterfacesWrittenByHand();
    void remembersWhetherToNotify();
    void listsFromTheShortestChosen();
    void followsTheSystemsLanguage();

    void beginsTheSumWhereTheOtherLinesBegin();
    void remembersSizePageAndOrder();
    void startsAsAtFirstWithoutAStoredView();
    void bearsAnyStoredView_data();
    void bearsAnyStoredView();

    void reachesEveryControlByTab();

private:
    void withSettings(const std::function<void(SettingsDialog &)> &step);
    refdialer::MainWindow &window() const { return m_history->window(); }

    std::unique_ptr<HistoryWindow> m_history;
    QList<QUrl> m_openedUrls;
};

namespace
{

QString setting(const char *key)
{
    return CommonUtils::GetSettings("refdialer", key);
}

} // namespace

void TestWindowControls::init()
{
    m_openedUrls.clear();
    m_history = std::make_unique<HistoryWindow>();
    QVERIFY(m_history->store({connection("one", 0), connection("two", 1)}));
    QVERIFY(m_history->open());
}

void TestWindowControls::opensTheManual()
{
    QVERIFY2(QFile::exists(refdialer::HelpMenu::manualFile()),
             qPrintable(refdialer::HelpMenu::manualFile()));
    QDesktopServices::setUrlHandler("file", this, "noteUrl");
    m_history->pressKey(Qt::Key_F1);
    QDesktopServices::unsetUrlHandler("file");
    QCOMPARE(m_openedUrls, {QUrl::fromLocalFile(refdialer::HelpMenu::manualFile())});
    QFile manual(refdialer::HelpMenu::manualFile());
    QVERIFY(manual.open(QFile::ReadOnly));
    const QByteArray text = manual.readAll();
    QVERIFY(text.contains("<html"));
    QVERIFY(text.contains("Ctrl+F"));
}

void TestWindowControls::saysVersionAndLicences()
{
    QCoreApplication::setApplicationVersion("9.8.7");
    QString text;
    QTimer::singleShot(0, this, [&text] {
        auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        text = box->text();
        box->close();
    });
    menuEntry(window(), {"Help", "About refdialer"})->trigger();
    for (const char *const part : {"9.8.7", "MIT", "LGPL", "SQLite", "libmnl"})
        QVERIFY2(text.contains(part), qPrintable(text));
}

void TestWindowControls::withSettings(const std::function<void(SettingsDialog &)> &step)
{
    SettingsDialog dialog(nullptr, &window());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    step(dialog);
    dialog.close();
}

void TestWindowControls::remembersInterfaces()
{
    withSettings([](SettingsDialog &dialog) {
        QSignalSpy chosen(&dialog, &SettingsDialog::interfacesChosen);
        auto &edit = *dialog.findChild<refdialer::RecordingSettings *>()->findChild<QLineEdit *>();
        QCOMPARE(edit.text(), QString());
        QTest::keyClicks(&edit, " eth0,wlan0  eth0");
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.first().first().toStringList(), QStringList({"eth0", "wlan0"}));
        QVERIFY(dialog.isVisible());
    });
    QCOMPARE(common::chosenInterfaces(), QStringList({"eth0", "wlan0"}));
    withSettings([](SettingsDialog &dialog) {
        auto &edit = *dialog.findChild<refdialer::RecordingSettings *>()->findChild<QLineEdit *>();
        QCOMPARE(edit.text(), QString("eth0 wlan0"));
        edit.setFocus();
        edit.clear();
    });
    QCOMPARE(common::chosenInterfaces(), QStringList());
}

void TestWindowControls::refusesWhatNamesNoInterface()
{
    withSettings([](SettingsDialog &dialog) {
        auto &recording = *dialog.findChild<refdialer::RecordingSettings *>();
        auto &edit = *recording.findChild<QLineEdit *>();
        QTest::keyClicks(&edit, "eth0 a/b");
        QTest::keyClick(&edit, Qt::Key_Return);
        QStringList texts;
        for (const QLabel *const label : recording.findChildren<QLabel *>())
            texts.append(label->text());
        QVERIFY2(texts.join('\n').contains("\"a/b\""), qPrintable(texts.join('\n')));
        QCOMPARE(setting("interfaces"), QString());
    });
}

void TestWindowControls::readsInterfacesWrittenByHand()
{
    QFile file(refhost::settingsFile());
    QVERIFY(refhost::storeSetting("refdialer", "interfaces", ""));
    QVERIFY(file.open(QFile::WriteOnly));
    file.write("[refdialer]\ninterfaces=eth0, a/b, wlan0\n");
    file.close();
    QCOMPARE(common::chosenInterfaces(), QStringList({"eth0", "wlan0"}));
}

void TestWindowControls::remembersWhetherToNotify()
{
    const auto toggle = [](SettingsDialog &dialog) {
        auto &box = *dialog.findChild<refdialer::RecordingSettings *>()->findChild<QCheckBox *>();
        QCOMPARE(box.isChecked(), common::arePlanWarningsWanted());
        QTest::keyClick(&box, Qt::Key_Space);
    };
    QVERIFY(common::arePlanWarningsWanted());
    withSettings(toggle);
    QVERIFY(!common::arePlanWarningsWanted());
    withSettings(toggle);
    QVERIFY(common::arePlanWarningsWanted());
}

void TestWindowControls::listsFromTheShortestChosen()
{
    const auto hiddenRows = [this] {
        return int(m_history->table().isRowHidden(0)) + int(m_history->table().isRowHidden(1));
    };
    QTimer::singleShot(0, this, [] {
        auto *const dialog = qobject_cast<SettingsDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        dialog->findChild<QSpinBox *>()->setValue(3600);
        dialog->close();
    });
    menuEntry(window(), {"File", "Settings…"})->trigger();
    QCOMPARE(hiddenRows(), 0); // they are longer
    QCOMPARE(refdialer::shortestListed(), 3600);
    QVERIFY(m_history->runSql("UPDATE connection SET connected_seconds = 3599"));
    menuEntry(window(), {"View", "Refresh"})->trigger();
    QCOMPARE(hiddenRows(), 2);
    // The next window knows it too.
    m_history->close();
    QVERIFY(m_history->open());
    QCOMPARE(hiddenRows(), 2);
}

void TestWindowControls::followsTheSystemsLanguage()
{
    QVERIFY(refdialer::storeLanguage("de"));
    QVERIFY(refhost::setLanguage("de"));
    withSettings([](SettingsDialog &dialog) {
        QSignalSpy chosen(&dialog, &SettingsDialog::languageChosen);
        auto &box = *dialog.findChild<QComboBox *>();
        QCOMPARE(box.currentText(), QString("Deutsch"));
        QTest::keyClick(&box, Qt::Key_Home);
        QCOMPARE(box.currentIndex(), 0);
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(refhost::language(), refdialer::systemLanguage());
    });
    QVERIFY(refdialer::isSystemLanguageChosen());
    QCOMPARE(refdialer::startLanguage(), refdialer::systemLanguage());
    withSettings([](SettingsDialog &dialog) {
        QCOMPARE(dialog.findChild<QComboBox *>()->currentIndex(), 0);
    });
}

void TestWindowControls::beginsTheSumWhereTheOtherLinesBegin()
{
    const auto beginOf = [this](const QLabel &label) {
        return label.mapTo(&window(), label.contentsRect().topLeft()).x();
    };
    const auto *const sum = window().findChild<refdialer::SumLabel *>();
    const auto *const line = window().findChild<refdialer::StateLine *>()->findChild<QLabel *>();
    // The status bar has a little margin of its own.
    QVERIFY(std::abs(beginOf(*sum) - beginOf(*line)) < line->fontMetrics().averageCharWidth());
}

void TestWindowControls::remembersSizePageAndOrder()
{
    window().resize(712, 667);
    menuEntry(window(), {"View", "Sort by", "Profile"})->trigger();
    menuEntry(window(), {"View", "Sort by", "Descending"})->trigger();
    auto &pages = *window().findChild<QTabWidget *>();
    const int lastPage = pages.count() - 1;
    pages.setCurrentIndex(lastPage);
    QVERIFY(refdialer::storeWindowView(window().view()));
    m_history->close();
    QVERIFY(m_history->open());
    window().restoreView(refdialer::storedWindowView());
    QTRY_COMPARE(window().size(), QSize(712, 667));
    QCOMPARE(window().findChild<QTabWidget *>()->currentIndex(), lastPage);
    QCOMPARE(m_history->shownProfiles(), QStringList({"two", "one"}));
    QVERIFY(menuEntry(window(), {"View", "Sort by", "Profile"})->isChecked());
    QVERIFY(menuEntry(window(), {"View", "Sort by", "Descending"})->isChecked());
}

void TestWindowControls::startsAsAtFirstWithoutAStoredView()
{
    const QSize size = window().size();
    window().restoreView(refdialer::storedWindowView());
    QCOMPARE(window().size(), size);
    QCOMPARE(m_history->shownProfiles(), QStringList({"two", "one"}));
    QVERIFY(menuEntry(window(), {"View", "Sort by", "Start"})->isChecked());
}

void TestWindowControls::bearsAnyStoredView_data()
{
    QTest::addColumn<QString>("order");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("geometry");
    QTest::newRow("no such column") << "size ascending"
                                    << "0"
                                    << "";
    QTest::newRow("no direction") << "profile"
                                  << "0"
                                  << "";
    QTest::newRow("no such direction") << "profile sideways"
                                       << "0"
                                       << "";
    QTest::newRow("more than that") << "profile descending ascending"
                                    << "0"
                                    << "";
    QTest::newRow("no such page") << "start descending"
                                  << "99"
                                  << "";
    QTest::newRow("no page") << "start descending"
                             << "-1"
                             << "";
    QTest::newRow("no geometry") << "start descending"
                                 << "0"
                                 << "bm9uc2Vuc2U=";
}

void TestWindowControls::bearsAnyStoredView()
{
    QFETCH(QString, order);
    QFETCH(QString, page);
    QFETCH(QString, geometry);
    QVERIFY(refhost::storeSetting("refdialer", "order", order));
    QVERIFY(refhost::storeSetting("refdialer", "page", page));
    QVERIFY(refhost::storeSetting("refdialer", "windowGeometry", geometry));
    startsAsAtFirstWithoutAStoredView();
    QCOMPARE(window().findChild<QTabWidget *>()->currentIndex(), 0);
}

void TestWindowControls::reachesEveryControlByTab()
{
    QSet<QWidget *> wanted;
    for (QWidget *const control : controlsIn(window())) {
        if (control->isVisible() && control->isEnabled())
            wanted.insert(control);
    }
    QVERIFY(wanted.contains(&m_history->table()));
    QSet<QWidget *> reached;
    for (int i = 0; i < 4 * wanted.size(); ++i) {
        m_history->pressKey(Qt::Key_Tab);
        reached.insert(QApplication::focusWidget());
    }
    for (const QWidget *const control : wanted - reached)
        QFAIL(qPrintable(descriptionOf(*control)));
}

QTEST_MAIN(TestWindowControls)
#include "tst_windowcontrols.moc"
