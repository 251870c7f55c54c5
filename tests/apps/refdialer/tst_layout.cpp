// SPDX-License-Identifier: MIT
#include "Controls.h"
#include "CutText.h"
#include "EveryWindow.h"
#include "HistoryWindow.h"
#include "apps/refdialer/UsageChart.h"
#include "apps/refdialer/WindowView.h"
#include "refhost/libcore/Host.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

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
    void givesTheHistoryRoomForALargeFont();
};

namespace
{

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

/// They speak only the languages in which Qt's own texts are installed.
QStringList buttonsOfQtIn(const QWidget &window)
{
    const auto *const box = qobject_cast<const QMessageBox *>(&window);
    const bool areQts = box && box->standardButtons() != QMessageBox::NoButton;
    return areQts ? QStringList("\"" + box->text() + "\" has a button of Qt's") : QStringList();
}

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
    const QTemporaryDir home;
    HistoryWindow history;
    QVERIFY(storeForEveryWindow(history));
    QVERIFY(makeItTheUsersOwn(history, home.path()));
    QVERIFY(refhost::setLanguage(language));
    QVERIFY(history.open());
    // As large as it opens on a screen with room for it.
    history.window().resize(refdialer::usualSizeOf(history.window()));
    settle();
    // The last one is Qt's, over a column that the user makes as wide as it is to be.
    const QStringList userData{profileForEveryWindow, QString::fromStdString(history.storePath()),
                               QStringLiteral("Date Modified")};
    QSet<QString> faults;
    lookAtEveryWindow(history, [&](const QString &name, const QWidget &window) {
        for (const QString &fault : cutTexts(window, userData) + sharedKeys(window) +
                                        namelessControlsIn(window) + buttonsOfQtIn(window))
            faults.insert(QStringLiteral("%1: %2").arg(name, fault));
    });
    QVERIFY2(faults.isEmpty(), qPrintable(QStringList(faults.values()).join('\n')));
}

void TestLayout::givesTheHistoryRoomForALargeFont()
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSize(2 * usual.pointSize());
    QApplication::setFont(large);
    HistoryWindow history;
    QVERIFY(storeForEveryWindow(history));
    QVERIFY(history.open());
    history.window().resize(refdialer::usualSizeOf(history.window()));
    QTRY_COMPARE(cutTexts(history.table()), QStringList());
    history.plugin().changeLanguage(QStringLiteral("ru"));
    QTRY_COMPARE(cutTexts(history.table()), QStringList());
    QApplication::setFont(usual);
}

QTEST_MAIN(TestLayout)
#include "tst_layout.moc"
