// SPDX-License-Identifier: MIT
#include "Controls.h"
#include "CutText.h"
#include "HistoryWindow.h"
#include "apps/common/ProblemText.h"
#include "apps/refdialer/ClosingChoice.h"
#include "apps/refdialer/FileChooser.h"
#include "apps/refdialer/HelpMenu.h"
#include "apps/refdialer/PastPeriodsDialog.h"
#include "apps/refdialer/PlanDialog.h"
#include "apps/refdialer/PlanEditor.h"
#include "apps/refdialer/PlanLine.h"
#include "apps/refdialer/PlanWatch.h"
#include "apps/refdialer/SettingsDialog.h"
#include "apps/refdialer/StateLine.h"
#include "apps/refdialer/SummaryChoice.h"
#include "apps/refdialer/TransferDialog.h"
#include "apps/refdialer/UsageChart.h"
#include "refhost/libcore/Host.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

using Make = QWidget *(*)();
Q_DECLARE_METATYPE(Make)

/// Every window in every language, as large as it opens.
class TestLayout : public QObject
{
    Q_OBJECT

private slots:
    void findsATextWithTooLittleRoom_data();
    void findsATextWithTooLittleRoom();
    void findsATextThatLiesOutsideTheWindow();
    void findsAPaintedTextWithTooLittleRoom();
    void toleratesThatUserDataIsShortened();
    void findsAKeyThatIsGivenTwice();

    void findsNoFaultInAnyWindow_data();
    void findsNoFaultInAnyWindow();
};

namespace
{

const QString profile = QStringLiteral("internet.example");

using Look = std::function<void(const QWidget &window)>;

/// Does what opens a modal window, looks at that and closes it.
void lookAtModal(const Look &look, const std::function<void()> &open)
{
    bool isSeen = false;
    QTimer whenOpen;
    QObject::connect(&whenOpen, &QTimer::timeout, &whenOpen, [&] {
        QWidget *const opened = QApplication::activeModalWidget();
        if (!opened)
            return;
        whenOpen.stop();
        isSeen = true;
        look(*opened);
        opened->close();
    });
    whenOpen.start();
    open();
    QTRY_VERIFY(isSeen);
}

recorder::ConnectionState lasting(qint64 id)
{
    recorder::ConnectionState state;
    state.id = id;
    state.profile = profile;
    state.interfaceName = QStringLiteral("wwan%1").arg(id);
    state.since = QDateTime(QDate(2026, 12, 24), QTime(22, 30));
    state.uploadedBytes = 1023LL << 30;
    state.uploadRate = 1023 << 20;
    state.downloadedBytes = 1023LL << 30;
    state.downloadRate = 1023 << 20;
    return state;
}

void lookAtMenus(HistoryWindow &history, const Look &look)
{
    for (QMenu *const menu : history.window().findChildren<QMenu *>()) {
        menu->popup(QPoint(0, 0));
        look(*menu);
        menu->close();
    }
}

void lookAtPages(HistoryWindow &history, const Look &look)
{
    auto &pages = *history.window().findChild<QTabWidget *>();
    for (int page = 0; page < pages.count(); ++page) {
        pages.setCurrentIndex(page);
        look(history.window());
    }
    pages.setCurrentIndex(0);
}

void lookAtConnections(HistoryWindow &history, const Look &look)
{
    history.state().setWatched(true);
    look(history.window());
    history.state().begin(lasting(1));
    history.state().setProblem(common::impossibleInterfaceText(QStringLiteral("wwan 0")));
    QCoreApplication::processEvents();
    look(history.window());
    history.state().end(1);
}

void lookAtTheSample(HistoryWindow &history, const Look &look)
{
    refdialer::StateLine line({QString(), true}, history.state());
    history.state().setWatched(false);
    line.resize(history.window().width(), line.sizeHint().height());
    line.show();
    look(line);
}

void lookAtTheSettings(HistoryWindow &history, const Look &look)
{
    refdialer::SettingsDialog dialog(nullptr, &history.window());
    dialog.show();
    look(dialog);
}

void lookAtTheClosingQuestion(HistoryWindow &history, const Look &look)
{
    lookAtModal(look, [&history] { refdialer::chooseClosing(&history.window()); });
}

void lookAtTheDeletion(HistoryWindow &history, const Look &look)
{
    history.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&history.window()));
    history.table().setFocus();
    history.clickRow(0);
    lookAtModal(look, [&history] { history.pressKey(Qt::Key_Delete); });
}

void lookAtTheSummary(HistoryWindow &history, const Look &look)
{
    QVERIFY(refdialer::storeSummaryChoice(true));
    history.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&history.window()));
    lookAtModal(look, [&history] {
        history.state().begin(lasting(1));
        history.state().end(1);
    });
}

void lookAtAbout(HistoryWindow &history, const Look &look)
{
    QMenu &help = *history.window().findChild<refdialer::HelpMenu *>();
    lookAtModal(look, [&help] { help.actions().at(help.actions().size() - 2)->trigger(); });
}

void lookAtTheChoosers(HistoryWindow &history, const Look &look)
{
    for (QFileDialog *const chooser : {refdialer::makeExportChooser(&history.window()),
                                       refdialer::makeImportChooser(&history.window())}) {
        // The one that is drawn here; the system's own cuts what it likes.
        chooser->setOption(QFileDialog::DontUseNativeDialog);
        chooser->show();
        QCoreApplication::processEvents();
        look(*chooser);
        chooser->close();
    }
}

void lookAtTheStatistics(HistoryWindow &history, const Look &look)
{
    if (history.plugin().hasStatistics())
        lookAtModal(look, [&history] { QVERIFY(history.plugin().showStatistics()); });
}

/// Of each kind of period and of each state.
std::vector<history::DataPlan> differentPlans()
{
    constexpr std::int64_t amount = 1023LL << 30;
    const history::JulianDay today = QDate::currentDate().toJulianDay();
    history::DataPlan within;
    within.name = profile.toStdString();
    within.amount = amount;
    within.period = history::EveryDays{28};
    history::DataPlan unlimited = within;
    unlimited.amount.reset();
    unlimited.period = history::MonthlyFrom{31};
    history::DataPlan warned = within;
    warned.usedElsewhere = history::UsedElsewhere{amount / 10 * 9, today};
    history::DataPlan spent = within;
    spent.period = history::OnceBetween{today - 1, today + 99};
    spent.usedElsewhere = history::UsedElsewhere{amount + 1, today};
    history::DataPlan ended = within;
    ended.period = history::OnceBetween{today - 2, today - 1};
    return {within, unlimited, warned, spent, ended};
}

void lookAtThePlan(HistoryWindow &history, const history::DataPlan &plan, const Look &look)
{
    refdialer::PlanWatch plans(QString::fromStdString(history.storePath()));
    plans.finish();
    refdialer::PlanLine line(plans);
    line.resize(history.window().width(), line.sizeHint().height());
    refdialer::PlanDialog dialog(plans, &history.window());
    refdialer::PlanEditor editor(plans, plan, &history.window());
    refdialer::PastPeriodsDialog periods(plans, 0, &history.window());
    plans.finish();
    for (QWidget *const window :
         std::initializer_list<QWidget *>{&line, &dialog, &editor, &periods}) {
        window->show();
        look(*window);
        window->close();
    }
}

void lookAtThePlans(HistoryWindow &history, const Look &look)
{
    auto store = history::Store::openOrCreate(history.storePath());
    for (const history::DataPlan &plan : differentPlans()) {
        QVERIFY(store.value().setPlan(plan));
        lookAtThePlan(history, plan, look);
        QVERIFY(store.value().removePlan(plan.name));
    }
}

void lookAtTheImport(HistoryWindow &history, const Look &look)
{
    refdialer::TransferDialog dialog(refdialer::TransferKind::Import, &history.window());
    dialog.show();
    const std::atomic<bool> isCancelled = false;
    refdialer::TransferProgress progress(isCancelled, [&](const refdialer::TransferState &state) {
        dialog.showState(state);
        QCoreApplication::processEvents();
        look(dialog);
    });
    progress.beginStoring(1000000);
    progress.beginListing();
    progress.beginWriting(1000000);
    dialog.showResult({refdialer::TransferResult::Kind::Failed, {}, profile});
    QCoreApplication::processEvents();
    look(dialog);
}

/// A new window or page gets a line here.
const struct {
    const char *name;
    void (*lookAt)(HistoryWindow &history, const Look &look);
} windows[] = {
    {"menus", lookAtMenus},
    {"pages", lookAtPages},
    {"connections", lookAtConnections},
    {"sample", lookAtTheSample},
    {"settings", lookAtTheSettings},
    {"closing", lookAtTheClosingQuestion},
    {"deletion", lookAtTheDeletion},
    {"summary", lookAtTheSummary},
    {"about", lookAtAbout},
    {"choosers", lookAtTheChoosers},
    {"statistics", lookAtTheStatistics},
    {"plans", lookAtThePlans},
    {"import", lookAtTheImport},
};

template <class Widget>
QWidget *withText(Widget *widget)
{
    widget->setText("A text that needs room");
    return widget;
}

const struct {
    const char *name;
    Make make;
} widgetsWithText[] = {
    {"label", [] { return withText(new QLabel); }},
    {"button", [] { return withText(new QPushButton); }},
    {"check box", [] { return withText(new QCheckBox); }},
    {"radio button", [] { return withText(new QRadioButton); }},
    {"label of several lines",
     []() -> QWidget * {
         auto *const label = new QLabel("One line\nand another");
         label->setWordWrap(true);
         return label;
     }},
    {"combo box",
     []() -> QWidget * {
         auto *const box = new QComboBox;
         box->addItems({"short", "A text that needs room"});
         return box;
     }},
    {"group", []() -> QWidget * { return new QGroupBox("A text that needs room"); }},
    {"tabs",
     []() -> QWidget * {
         auto *const tabs = new QTabBar;
         tabs->setUsesScrollButtons(false);
         tabs->addTab("short");
         tabs->addTab("A text that needs room");
         return tabs;
     }},
    {"menu bar",
     []() -> QWidget * {
         auto *const menu = new QMenuBar;
         menu->addMenu("short");
         menu->addMenu("A text that needs room");
         return menu;
     }},
    {"table",
     []() -> QWidget * {
         auto *const table = new QTableWidget(1, 1);
         table->setHorizontalHeaderLabels({"A text that needs room"});
         table->setItem(0, 0, new QTableWidgetItem("A text that needs room"));
         table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
         return table;
     }},
};

} // namespace

void TestLayout::findsATextWithTooLittleRoom_data()
{
    QTest::addColumn<Make>("make");
    for (const auto &widget : widgetsWithText)
        QTest::newRow(widget.name) << widget.make;
}

void TestLayout::findsATextWithTooLittleRoom()
{
    QFETCH(Make, make);
    const std::unique_ptr<QWidget> widget(make());
    const QSize fitting = widget->sizeHint().expandedTo(widget->minimumSizeHint());
    widget->resize(fitting);
    widget->show();
    QCOMPARE(cutTexts(*widget), QStringList());
    widget->setMinimumWidth(1);
    widget->resize(fitting.width() / 2, fitting.height());
    QVERIFY(!cutTexts(*widget).isEmpty());
    widget->resize(fitting);
    QCOMPARE(cutTexts(*widget), QStringList());
}

void TestLayout::findsATextThatLiesOutsideTheWindow()
{
    QWidget window;
    auto *const label = new QLabel("A text that needs room", &window);
    window.resize(2 * label->sizeHint());
    window.show();
    QCOMPARE(cutTexts(window), QStringList());
    label->move(label->sizeHint().width() + 5, 0);
    QCOMPARE(cutTexts(window).size(), 1);
}

void TestLayout::findsAPaintedTextWithTooLittleRoom()
{
    refdialer::UsageChart chart;
    chart.setBars({{QDate(2026, 11, 1), {1 << 30}}}, usage::BarUnit::Day, QString());
    chart.resize(chart.sizeHint());
    chart.show();
    QCOMPARE(cutTexts(chart), QStringList());
    chart.setMinimumSize(1, 1);
    chart.resize(chart.fontMetrics().height() * 3, chart.sizeHint().height());
    QVERIFY(cutTexts(chart).join(' ').contains("\"Received"));
}

void TestLayout::toleratesThatUserDataIsShortened()
{
    QLabel label("History in /home/somebody");
    label.resize(20, label.sizeHint().height());
    label.show();
    QCOMPARE(cutTexts(label).size(), 1);
    QCOMPARE(cutTexts(label, {"/home/somebody"}), QStringList());
}

void TestLayout::findsAKeyThatIsGivenTwice()
{
    QMenu menu;
    menu.addAction("&Open");
    QAction *const other = menu.addAction("&Close");
    QCOMPARE(sharedKeys(menu), QStringList());
    other->setText("Cl&ose");
    QCOMPARE(sharedKeys(menu), QStringList("Alt+O: &Open, Cl&ose"));
}

void TestLayout::findsNoFaultInAnyWindow_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : refhost::availableLanguages())
        QTest::newRow(qPrintable(language)) << language;
}

void TestLayout::findsNoFaultInAnyWindow()
{
    QFETCH(QString, language);
    HistoryWindow history;
    QVERIFY(history.store({connection(profile.toStdString(), 0)}));
    QVERIFY(refhost::setLanguage(language));
    QVERIFY(history.open());
    // The last one is Qt's, over a column that the user makes as wide as it is to be.
    const QStringList userData{profile, QString::fromStdString(history.storePath()),
                               QStringLiteral("Date Modified")};
    QStringList faults;
    for (const auto &each : windows) {
        each.lookAt(history, [&](const QWidget &window) {
            for (const QString &fault :
                 cutTexts(window, userData) + sharedKeys(window) + namelessControlsIn(window))
                faults.append(QStringLiteral("%1: %2").arg(each.name, fault));
        });
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
}

QTEST_MAIN(TestLayout)
#include "tst_layout.moc"
