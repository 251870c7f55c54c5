// SPDX-License-Identifier: MIT
#include "BoxInput.h"
#include "HistoryWindow.h"
#include "MenuEntry.h"
#include "apps/refdialer/UsagePage.h"
#include "refhost/libcore/Host.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include <memory>

namespace
{

class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget &widget) { widget.installEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++count;
        return QObject::eventFilter(watched, event);
    }
};

bool isWaitCursorShown()
{
    const QCursor *const cursor = QApplication::overrideCursor();
    return cursor && cursor->shape() == Qt::WaitCursor;
}

} // namespace

/// The built plug-in in our window, on a real store.
class TestHistory : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_history = std::make_unique<HistoryWindow>(); }
    void cleanup() { m_history.reset(); }

    void showsTheStoredConnectionsNewestFirst();
    void showsTimesThat31BitsDoNotHold();
    void showsAnEmptyTableBeforeThereIsAStore();
    void speaksTheLanguageOfTheProgram();
    void hidesUnderAnotherPage();
    void saysBeforehandThatADeletionTakesTime_data();
    void saysBeforehandThatADeletionTakesTime();

private:
    QString cell(int row, int column) const { return m_history->column(column).at(row); }

    std::unique_ptr<HistoryWindow> m_history;
};

void TestHistory::showsTheStoredConnectionsNewestFirst()
{
    QVERIFY(m_history->store({connection("first.example", 0), connection("third.example", 20),
                              connection("second.example", 10)}));
    QVERIFY(m_history->open());
    QCOMPARE(m_history->shownProfiles(),
             QStringList({"third.example", "second.example", "first.example"}));
    const QTableWidget &table = m_history->table();
    QCOMPARE(table.item(0, 1)->data(Qt::DisplayRole).toDateTime().toSecsSinceEpoch(),
             connection("third.example", 20).startUtc);
    QCOMPARE(cell(0, 3), QString("01:02:05"));
    QCOMPARE(cell(0, 4), QString("2.00 KB"));
    QCOMPARE(cell(0, 5), QString("5.00 MB"));
    QVERIFY(table.isVisible());
}

void TestHistory::showsTimesThat31BitsDoNotHold()
{
    history::Connection last = connection("last.example", 0);
    last.startUtc = 2147483648;
    last.endUtc = history::largestTime;
    QVERIFY(m_history->store({connection("first.example", 0), last}));
    QVERIFY(m_history->open());
    QCOMPARE(m_history->shownProfiles(), QStringList({"last.example", "first.example"}));
    const auto shownTime = [this](int column) {
        return m_history->table().item(0, column)->data(Qt::DisplayRole).toDateTime();
    };
    QCOMPARE(shownTime(1).toSecsSinceEpoch(), qint64(2147483648));
    QCOMPARE(shownTime(2).toSecsSinceEpoch(), qint64(history::largestTime));
}

void TestHistory::showsAnEmptyTableBeforeThereIsAStore()
{
    QVERIFY(m_history->open());
    QCOMPARE(m_history->table().rowCount(), 0);
    QCOMPARE(m_history->table().horizontalHeaderItem(0)->text(), QString("Profile (APN)"));
    QVERIFY(!QFile::exists(QString::fromStdString(m_history->storePath())));
}

void TestHistory::speaksTheLanguageOfTheProgram()
{
    QVERIFY(m_history->open());
    QCOMPARE(m_history->table().horizontalHeaderItem(5)->text(), QString("Downloaded"));
    QVERIFY(refhost::setLanguage("de"));
    m_history->plugin().changeLanguage("de");
    QCOMPARE(m_history->table().horizontalHeaderItem(5)->text(), QString("Empfangen"));
}

void TestHistory::hidesUnderAnotherPage()
{
    QVERIFY(m_history->open());
    const auto &pages = *m_history->window().findChild<QTabWidget *>();
    const QWidget &shownByPlugin = *m_history->table().parentWidget();
    QAction *const history = menuEntry(m_history->window(), {"View", "History"});
    QAction *const usage = menuEntry(m_history->window(), {"View", "Usage"});
    const auto isHistory = [&] {
        return pages.tabText(pages.currentIndex()) == "History" && history->isChecked() &&
               !usage->isChecked() && m_history->table().isVisible();
    };
    const auto isUsage = [&] {
        return pages.tabText(pages.currentIndex()) == "Usage" && usage->isChecked() &&
               !history->isChecked() && shownByPlugin.isHidden() &&
               m_history->window().findChild<refdialer::UsagePage *>()->isVisible();
    };
    QVERIFY(isHistory());
    usage->trigger();
    QVERIFY(isUsage());
    history->trigger();
    QVERIFY(isHistory());
    m_history->pressKey(Qt::Key_2, Qt::ControlModifier);
    QVERIFY(isUsage());
    m_history->pressKey(Qt::Key_1, Qt::ControlModifier);
    QVERIFY(isHistory());
    QTest::mouseClick(pages.tabBar(), Qt::LeftButton, {}, pages.tabBar()->tabRect(1).center());
    QVERIFY(isUsage());
}

void TestHistory::saysBeforehandThatADeletionTakesTime_data()
{
    QTest::addColumn<int>("connections");
    QTest::addColumn<bool>("takesTime");
    QTest::newRow("few") << 8 << false;
    QTest::newRow("many") << 1000 << true;
}

void TestHistory::saysBeforehandThatADeletionTakesTime()
{
    QFETCH(int, connections);
    QFETCH(bool, takesTime);
    std::vector<history::Connection> stored;
    for (int day = 0; day < connections; ++day)
        stored.push_back(connection("internet.example", day));
    QVERIFY(m_history->store(stored));
    QVERIFY(m_history->open());
    QTableWidget &table = m_history->table();
    QStatusBar &bar = *m_history->window().statusBar();
    PaintCounter paints(bar);
    QTimer::singleShot(0, this, [&paints] {
        paints.count = 0;
        clickOn(*openBox(), "OK");
    });
    bool isPainted = false;
    QString message;
    bool isWaiting = false;
    connect(table.model(), &QAbstractItemModel::rowsAboutToBeRemoved, this, [&] {
        isPainted = paints.count > 0;
        message = bar.currentMessage();
        isWaiting = isWaitCursorShown();
    });
    m_history->clickRow(0);
    table.setFocus();
    m_history->pressKey(Qt::Key_Delete);
    QCOMPARE(table.rowCount(), connections - 1);
    QCOMPARE(message, takesTime ? QStringLiteral("Deleting connections…") : QString());
    QCOMPARE(isPainted, takesTime);
    QCOMPARE(isWaiting, takesTime);
    QTRY_VERIFY(bar.currentMessage().isEmpty() && !isWaitCursorShown());
}

QTEST_MAIN(TestHistory)
#include "tst_history.moc"
