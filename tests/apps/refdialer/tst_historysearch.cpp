// SPDX-License-Identifier: MIT
#include "HistoryWindow.h"
#include "MenuEntry.h"
#include "apps/refdialer/HistoryNotice.h"
#include "apps/refdialer/HistoryPage.h"
#include "apps/refdialer/HistorySearch.h"
#include "apps/refdialer/SumLabel.h"
#include "refhost/libcore/Host.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDateEdit>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include <memory>

using history::Connection;

/// What stands around the plug-in's list: the search, the sum, and what keys do to it.
class TestHistorySearch : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_history = std::make_unique<HistoryWindow>(); }
    void cleanup() { m_history.reset(); }

    void findsAPartOfAProfile_data();
    void findsAPartOfAProfile();
    void findsADaysConnections_data();
    void findsADaysConnections();
    void findsThisMonthsAndLastMonthsConnections();
    void findsWhatFitsBoth();
    void clearsTheSearchWithEscape();
    void leavesTheSearchWithEscape();
    void listsNoneThatIsTooShort();

    void addsUpWhatIsListed();
    void addsUpWhatIsSelected();
    void addsUpWhatIsLeft();

    void copiesWholeRows();
    void keepsTheClipboardWithoutASelection();
    void opensTheMenuByKeyboard_data();
    void opensTheMenuByKeyboard();
    void opensNoMenuWithoutRows();

    void saysWhenNothingIsFound();
    void saysWhenAllAreTooShort();
    void saysWhatToDoWithoutConnections();
    void saysNothingOfConnectionsThatCannotBeRead();
    void speaksAnotherLanguage();

private:
    template <typename Widget>
    Widget &find() const
    {
        return *m_history->window().findChild<Widget *>();
    }
    template <typename Widget>
    Widget &inSearch() const
    {
        return *find<refdialer::HistorySearch>().findChild<Widget *>();
    }
    void open(const std::vector<Connection> &connections);
    void type(const QString &text);
    void chooseDays(int choice);
    QString listed() const;
    QString sum() const { return find<refdialer::SumLabel>().text(); }
    QString notice() const;

    std::unique_ptr<HistoryWindow> m_history;
};

namespace
{

/// As the search lists them.
enum Days { AllDays, ThisMonth, LastMonth, ThisYear, ChosenDays };

Connection connectionOn(const std::string &profile, const QDate &day, int seconds = 60)
{
    Connection made = connection(profile, 0);
    made.startUtc = QDateTime(day, QTime(12, 0)).toSecsSinceEpoch();
    made.endUtc = made.startUtc + seconds;
    made.connectedSeconds = seconds;
    return made;
}

} // namespace

void TestHistorySearch::open(const std::vector<Connection> &connections)
{
    QVERIFY(m_history->store(connections));
    QVERIFY(m_history->open());
}

void TestHistorySearch::type(const QString &text)
{
    m_history->pressKey(Qt::Key_F, Qt::ControlModifier);
    QVERIFY(inSearch<QLineEdit>().hasFocus());
    // Not by keys, of which Qt has none for letters that few keyboards have.
    inSearch<QLineEdit>().insert(text);
}

void TestHistorySearch::chooseDays(int choice)
{
    auto &days = inSearch<QComboBox>();
    QTest::keyClick(&days, Qt::Key_Home);
    for (int i = 0; i < choice; ++i)
        QTest::keyClick(&days, Qt::Key_Down);
    QCOMPARE(days.currentIndex(), choice);
}

QString TestHistorySearch::listed() const
{
    QStringList profiles;
    for (int row = 0; row < m_history->table().rowCount(); ++row) {
        if (!m_history->table().isRowHidden(row))
            profiles.append(m_history->table().item(row, 0)->text());
    }
    return profiles.join(' ');
}

/// What it says; empty if it is not to be seen.
QString TestHistorySearch::notice() const
{
    const auto &notice = find<refdialer::HistoryNotice>();
    return notice.isVisible() ? notice.findChild<QLabel *>()->text() : QString();
}

void TestHistorySearch::findsAPartOfAProfile_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("found");
    QTest::newRow("everything") << "" << QString::fromUtf8("İnternet Café.net web.example");
    QTest::newRow("a part") << "example"
                            << "web.example";
    QTest::newRow("another case") << "WEB"
                                  << "web.example";
    QTest::newRow("with blanks around") << " web "
                                        << "web.example";
    QTest::newRow("without accents") << "cafe" << QString::fromUtf8("Café.net");
    QTest::newRow("with accents in another case")
        << QString::fromUtf8("CAFÉ") << QString::fromUtf8("Café.net");
    QTest::newRow("a letter of Turkish") << "inter" << QString::fromUtf8("İnternet");
    QTest::newRow("a letter of Turkish without a dot")
        << QString::fromUtf8("ınter") << QString::fromUtf8("İnternet");
    QTest::newRow("in several") << "net" << QString::fromUtf8("İnternet Café.net");
    QTest::newRow("nothing that is a pattern") << ".*"
                                               << "";
}

void TestHistorySearch::findsAPartOfAProfile()
{
    QFETCH(QString, text);
    open({connection("web.example", 0), connection("Café.net", 1), connection("İnternet", 2)});
    type(text);
    QTEST(listed(), "found");
}

void TestHistorySearch::findsADaysConnections_data()
{
    QTest::addColumn<QDate>("first");
    QTest::addColumn<QDate>("last");
    QTest::addColumn<QString>("found");
    const auto day = [](int number) { return QDate(2026, 3, number); };
    QTest::newRow("from the first to the last") << day(1) << day(31) << "d30 d15 d2";
    QTest::newRow("both bounds belong to it") << day(2) << day(15) << "d15 d2";
    QTest::newRow("one day") << day(15) << day(15) << "d15";
    QTest::newRow("the later day first") << day(31) << day(15) << "d30 d15";
    QTest::newRow("none") << day(3) << day(14) << "";
}

void TestHistorySearch::findsADaysConnections()
{
    QFETCH(QDate, first);
    QFETCH(QDate, last);
    open({connectionOn("d2", QDate(2026, 3, 2)), connectionOn("d15", QDate(2026, 3, 15)),
          connectionOn("d30", QDate(2026, 3, 30))});
    const QList<QDateEdit *> edits = find<refdialer::HistorySearch>().findChildren<QDateEdit *>();
    QCOMPARE(int(edits.size()), 2);
    QVERIFY(!edits[0]->isVisible() && !edits[1]->isVisible());
    chooseDays(ChosenDays);
    QVERIFY(edits[0]->isVisible() && edits[1]->isVisible());
    edits[0]->setDate(first);
    edits[1]->setDate(last);
    QTEST(listed(), "found");
}

void TestHistorySearch::findsThisMonthsAndLastMonthsConnections()
{
    const QDate today = QDate::currentDate();
    const QDate first(today.year(), today.month(), 1);
    const QDate lastYear(today.year() - 1, 6, 15);
    open({connectionOn("now", first), connectionOn("before", first.addDays(-1)),
          connectionOn("long ago", lastYear)});
    chooseDays(ThisMonth);
    QCOMPARE(listed(), QString("now"));
    chooseDays(LastMonth);
    QCOMPARE(listed(), QString("before"));
    chooseDays(ThisYear);
    QVERIFY(!listed().contains("long ago"));
    QVERIFY(listed().startsWith("now"));
    chooseDays(AllDays);
    QCOMPARE(listed(), QString("now before long ago"));
}

void TestHistorySearch::findsWhatFitsBoth()
{
    const QDate today = QDate::currentDate();
    open({connectionOn("a", today), connectionOn("b", today),
          connectionOn("a", QDate(today.year() - 1, 1, 1))});
    chooseDays(ThisYear);
    type("a");
    QCOMPARE(listed(), QString("a"));
}

void TestHistorySearch::clearsTheSearchWithEscape()
{
    open({connection("one", 0), connection("two", 1)});
    chooseDays(ThisYear);
    type("one");
    m_history->pressKey(Qt::Key_Escape);
    QCOMPARE(listed(), QString("two one"));
    QCOMPARE(inSearch<QLineEdit>().text(), QString());
    QCOMPARE(inSearch<QComboBox>().currentIndex(), int(AllDays));
}

void TestHistorySearch::leavesTheSearchWithEscape()
{
    open({connection("one", 0)});
    type("");
    m_history->pressKey(Qt::Key_Escape);
    QVERIFY(m_history->table().hasFocus());
}

void TestHistorySearch::listsNoneThatIsTooShort()
{
    const QDate day(2026, 3, 2);
    open({connectionOn("short", day, 59), connectionOn("long", day.addDays(1), 60)});
    find<refdialer::HistoryPage>().setShortest(60);
    QCOMPARE(listed(), QString("long"));
    find<refdialer::HistoryPage>().setShortest(0);
    QCOMPARE(listed(), QString("long short"));
}

void TestHistorySearch::addsUpWhatIsListed()
{
    open({connection("one", 0), connection("two", 1), connection("twenty", 2)});
    QTRY_COMPARE(sum(), QString("Connections: 3 · sent: 6.00 KB · received: 15.00 MB · "
                                "connected: 03:06:15"));
    type("tw");
    QTRY_COMPARE(sum(), QString("Connections: 2 · sent: 4.00 KB · received: 10.00 MB · "
                                "connected: 02:04:10"));
}

void TestHistorySearch::addsUpWhatIsSelected()
{
    Connection odd = connection("odd", 0);
    std::vector<Connection> connections;
    for (int day = 0; day < 10; ++day) {
        odd.startUtc += 86400;
        odd.endUtc += 86400;
        odd.uploadedBytes = 1029; // shown as 1.00 KB
        connections.push_back(odd);
    }
    open(connections);
    m_history->clickRow(0);
    QTRY_COMPARE(sum(), QString("Selected: 1 · sent: 1.00 KB · received: 5.00 MB · "
                                "connected: 01:02:05"));
    m_history->pressKey(Qt::Key_A, Qt::ControlModifier);
    QTRY_COMPARE(sum(), QString("Selected: 10 · sent: 10.05 KB · received: 50.00 MB · "
                                "connected: 10:20:50"));
}

void TestHistorySearch::addsUpWhatIsLeft()
{
    open({connection("one", 0), connection("two", 1)});
    m_history->table().removeRow(0);
    QTRY_COMPARE(sum(), QString("Connections: 1 · sent: 2.00 KB · received: 5.00 MB · "
                                "connected: 01:02:05"));
}

void TestHistorySearch::copiesWholeRows()
{
    open({connection("one", 0), connection("hidden", 1), connection("two\tthree", 2)});
    m_history->table().setColumnHidden(2, true);
    type("o");
    m_history->table().setFocus();
    m_history->pressKey(Qt::Key_A, Qt::ControlModifier);
    m_history->pressKey(Qt::Key_C, Qt::ControlModifier);
    const QLocale locale = m_history->table().locale();
    const auto row = [&locale](const QString &profile, int day) {
        const QDateTime start = QDateTime::fromSecsSinceEpoch(firstDay + 86400 * day);
        // Some locales have spaces of other widths than the usual one.
        return profile + '\t' + locale.toString(start, QLocale::ShortFormat).simplified() +
               "\t01:02:05\t2.00 KB\t5.00 MB\n";
    };
    QCOMPARE(QApplication::clipboard()->text(), row("two three", 2) + row("one", 0));
}

void TestHistorySearch::keepsTheClipboardWithoutASelection()
{
    open({connection("one", 0)});
    QApplication::clipboard()->setText("before");
    m_history->table().setFocus();
    m_history->pressKey(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QString("before"));
}

void TestHistorySearch::opensTheMenuByKeyboard_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<int>("downs");
    QTest::addColumn<QString>("selected");
    QTest::newRow("the Menu key") << Qt::Key_Menu << Qt::KeyboardModifiers() << 2 << "two";
    QTest::newRow("Shift+F10") << Qt::Key_F10 << Qt::KeyboardModifiers(Qt::ShiftModifier) << 3
                               << "one";
    QTest::newRow("no current row") << Qt::Key_Menu << Qt::KeyboardModifiers() << 0 << "three";
}

void TestHistorySearch::opensTheMenuByKeyboard()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(int, downs);
    open({connection("one", 0), connection("two", 1), connection("three", 2)});
    m_history->table().setFocus();
    if (downs > 0)
        m_history->clickRow(0);
    for (int i = 1; i < downs; ++i)
        m_history->pressKey(Qt::Key_Down);
    QStringList entries;
    // A key that is held down with it is handled before.
    QTimer whenOpen;
    connect(&whenOpen, &QTimer::timeout, this, [&entries] {
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu)
            return;
        for (const QAction *const action : menu->actions())
            entries.append(action->text());
        menu->close();
    });
    whenOpen.start(0);
    m_history->pressKey(key, modifiers);
    QCOMPARE(entries.size(), 2);
    const QModelIndexList rows = m_history->table().selectionModel()->selectedRows();
    QCOMPARE(int(rows.size()), 1);
    QTEST(rows.first().data().toString(), "selected");
}

void TestHistorySearch::opensNoMenuWithoutRows()
{
    open({connection("one", 0)});
    type("nothing");
    m_history->table().setFocus();
    m_history->pressKey(Qt::Key_Menu);
    QVERIFY(!QApplication::activePopupWidget());
}

void TestHistorySearch::saysWhenNothingIsFound()
{
    open({connection("one", 0)});
    QCOMPARE(notice(), QString());
    type("two");
    QVERIFY2(notice().contains("search"), qPrintable(notice()));
    for (QPushButton *const button :
         find<refdialer::HistoryNotice>().findChildren<QPushButton *>()) {
        if (button->isVisible())
            QTest::keyClick(button, Qt::Key_Space);
    }
    QCOMPARE(listed(), QString("one"));
    QCOMPARE(notice(), QString());
}

void TestHistorySearch::saysWhenAllAreTooShort()
{
    open({connection("one", 0)});
    find<refdialer::HistoryPage>().setShortest(4000);
    QVERIFY2(notice().contains("shorter"), qPrintable(notice()));
}

void TestHistorySearch::saysWhatToDoWithoutConnections()
{
    open({});
    auto &shown = find<refdialer::HistoryNotice>();
    QVERIFY2(notice().contains("appears here"), qPrintable(notice()));
    QSignalSpy import(&shown, &refdialer::HistoryNotice::importWanted);
    QTest::mouseClick(shown.findChildren<QPushButton *>().first(), Qt::LeftButton);
    QCOMPARE(import.size(), 1);
    QTRY_VERIFY(QApplication::activeModalWidget()); // asks for files
    QApplication::activeModalWidget()->close();
    QVERIFY(m_history->store({connection("one", 0)}));
    menuEntry(m_history->window(), {"View", "Refresh"})->trigger();
    QTRY_COMPARE(notice(), QString());
}

void TestHistorySearch::saysNothingOfConnectionsThatCannotBeRead()
{
    QVERIFY(m_history->store({}));
    QFile store(QString::fromStdString(m_history->storePath()));
    QVERIFY(store.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    const QByteArray empty = store.readAll();
    QVERIFY(store.seek(0) && store.write(QByteArray(empty.size(), 'x')) == empty.size());
    QVERIFY(m_history->open());
    QCOMPARE(notice(), QString());
    QVERIFY(store.seek(0) && store.write(empty) == empty.size());
    QTRY_VERIFY2(notice().contains("appears here"), qPrintable(notice()));
}

void TestHistorySearch::speaksAnotherLanguage()
{
    open({});
    QVERIFY(refhost::setLanguage("de"));
    QTRY_COMPARE(inSearch<QLineEdit>().placeholderText(), QString("Nach einem Profil suchen"));
    QCOMPARE(inSearch<QComboBox>().itemText(ThisMonth), QString("Dieser Monat"));
    QTRY_VERIFY2(sum().startsWith("Verbindungen: 0"), qPrintable(sum()));
    QTRY_VERIFY2(notice().contains("erscheint hier"), qPrintable(notice()));
}

QTEST_MAIN(TestHistorySearch)
#include "tst_historysearch.moc"
