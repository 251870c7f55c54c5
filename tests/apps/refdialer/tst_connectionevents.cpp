// SPDX-License-Identifier: MIT
#include "HistoryWindow.h"
#include "MenuEntry.h"
#include "apps/refdialer/SummaryChoice.h"

#include "ExtendDialog.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QWindow>

#include <memory>

/// What becomes of connections that begin and end while the window is open.
class TestConnectionEvents : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_history.reset(); }

    void showTheFinishedConnectionInOrder();
    void showASummaryIfItIsWanted_data();
    void showASummaryIfItIsWanted();
    void replaceTheSummaryThatIsStillOpen();
    void keepTheChosenOrder();
    void keepTheSelectionAtItsConnections();
    void showEachOfTwoConnectionsAtOnce();
    void keepTheNewConnectionWhenTheFormerIsWrittenLate();
    void doNothingWithoutTheDialupService();
    void doNothingAfterTheWindowWasClosed();

private:
    void begin(qint64 id = 1);
    void end(const history::Connection &finished, qint64 id = 1);
    ExtendDialog *summary() const;

    std::unique_ptr<HistoryWindow> m_history;
};

void TestConnectionEvents::init()
{
    m_history = std::make_unique<HistoryWindow>();
    QVERIFY(m_history->store({connection("first", 0), connection("second", 1)}));
}

/// What the recorder tells when a connection begins.
void TestConnectionEvents::begin(qint64 id)
{
    recorder::ConnectionState state;
    state.profile = "internet.example";
    state.id = id;
    state.interfaceName = "wwan0";
    m_history->state().begin(state);
}

/// What the recorder does and tells when one ends.
void TestConnectionEvents::end(const history::Connection &finished, qint64 id)
{
    QVERIFY(m_history->store({finished}));
    m_history->state().end(id);
}

ExtendDialog *TestConnectionEvents::summary() const
{
    for (QObject *const child : m_history->window().children()) {
        if (auto *const dialog = dynamic_cast<ExtendDialog *>(child))
            return dialog;
    }
    return nullptr;
}

void TestConnectionEvents::showTheFinishedConnectionInOrder()
{
    QVERIFY(m_history->open());
    begin();
    QCOMPARE(m_history->shownProfiles(), QStringList({"second", "first"}));
    end(connection("third", 2));
    QCOMPARE(m_history->shownProfiles(), QStringList({"third", "second", "first"}));
    QVERIFY(!m_history->table().isSortingEnabled());
}

void TestConnectionEvents::showASummaryIfItIsWanted_data()
{
    QTest::addColumn<bool>("isWanted");
    QTest::newRow("wanted") << true;
    QTest::newRow("not wanted") << false;
}

void TestConnectionEvents::showASummaryIfItIsWanted()
{
    QFETCH(bool, isWanted);
    QVERIFY(refdialer::storeSummaryChoice(isWanted));
    QVERIFY(m_history->open());
    begin();
    QVERIFY(!summary());
    history::Connection last = connection("third", 2);
    last.connectedSeconds = 90061;
    last.uploadedBytes = 1536;
    last.downloadedBytes = 1024 * 1024;
    end(last);
    QCOMPARE(bool(summary()), isWanted);
    if (!isWanted)
        return;
    QVERIFY(summary()->isVisible());
    QStringList texts;
    for (const QLabel *const label : summary()->findChildren<QLabel *>())
        texts.append(label->text());
    for (const char *const figure : {"25:01:01", "1.50 KB", "1.00 MB"})
        QVERIFY2(texts.contains(figure), figure);
    QTest::mouseClick(summary()->findChild<QPushButton *>(), Qt::LeftButton);
    QVERIFY(!summary());
}

void TestConnectionEvents::replaceTheSummaryThatIsStillOpen()
{
    QVERIFY(refdialer::storeSummaryChoice(true));
    QVERIFY(m_history->open());
    begin();
    end(connection("third", 2));
    begin();
    end(connection("fourth", 3));
    QVERIFY(QTest::qWaitForWindowActive(summary()));
    QTest::keyPress(summary()->windowHandle(), Qt::Key_Return);
    QTRY_VERIFY(!summary());
    QCOMPARE(m_history->table().rowCount(), 4);
}

void TestConnectionEvents::keepTheChosenOrder()
{
    QVERIFY(m_history->open());
    menuEntry(m_history->window(), {"View", "Sort by", "Ascending"})->trigger();
    begin();
    end(connection("third", 2));
    QCOMPARE(m_history->shownProfiles(), QStringList({"first", "second", "third"}));
}

void TestConnectionEvents::keepTheSelectionAtItsConnections()
{
    QVERIFY(m_history->open());
    m_history->clickRow(1);
    begin();
    end(connection("third", 2));
    QTableWidget &table = m_history->table();
    QStringList selected;
    for (const QTableWidgetItem *const item : table.selectedItems())
        selected.append(item->text());
    QCOMPARE(selected.size(), 6);
    QCOMPARE(selected.first(), QString("first"));
    QCOMPARE(table.currentItem()->text(), QString("first"));
}

void TestConnectionEvents::showEachOfTwoConnectionsAtOnce()
{
    QVERIFY(m_history->open());
    begin(1);
    begin(2);
    end(connection("third", 2), 1);
    QCOMPARE(m_history->table().rowCount(), 3);
    end(connection("fourth", 3), 2);
    QCOMPARE(m_history->table().rowCount(), 4);
}

void TestConnectionEvents::keepTheNewConnectionWhenTheFormerIsWrittenLate()
{
    QVERIFY(m_history->open());
    begin(1);
    begin(2);
    end(connection("third", 2), 1);
    QCOMPARE(m_history->state().connections().size(), 1);
    QCOMPARE(m_history->state().connections().first().id, 2);
}

void TestConnectionEvents::doNothingWithoutTheDialupService()
{
    QVERIFY(refdialer::storeSummaryChoice(true));
    QVERIFY(m_history->open(false));
    static const QRegularExpression missing("^Arg is NULL: .* onConnectionReceived 348$");
    for (int event = 0; event < 3; ++event)
        QTest::ignoreMessage(QtDebugMsg, missing);
    begin();
    end(connection("third", 2));
    QCOMPARE(m_history->table().rowCount(), 2);
    QVERIFY(!summary());
}

void TestConnectionEvents::doNothingAfterTheWindowWasClosed()
{
    QVERIFY(m_history->open());
    m_history->window().close();
    begin();
    end(connection("third", 2));
    QVERIFY(!m_history->window().findChild<QTableWidget *>());
}

QTEST_MAIN(TestConnectionEvents)
#include "tst_connectionevents.moc"
