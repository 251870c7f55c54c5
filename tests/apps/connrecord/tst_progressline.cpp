// SPDX-License-Identifier: MIT
#include "apps/connrecord/ProgressLine.h"

#include <QBuffer>
#include <QTest>

using namespace connrecord;

class ProgressLineTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void leavesTheTerminalAloneDuringAShortOperation();
    void showsHowFarALongOperationIs();
    void showsNoMoreThanAll_data();
    void showsNoMoreThanAll();
    void showsTheAmountWhereTheTotalIsNotKnown();
    void showsNothingWithoutATerminal();

private:
    QBuffer m_terminal;
};

void ProgressLineTest::init()
{
    m_terminal.close();
    m_terminal.setData({});
    m_terminal.open(QIODevice::WriteOnly);
}

void ProgressLineTest::leavesTheTerminalAloneDuringAShortOperation()
{
    {
        ProgressLine line(&m_terminal, "Reading", 100, 99);
        line.update(50);
        line.update(99);
    }
    QCOMPARE(m_terminal.data(), QByteArray());
}

void ProgressLineTest::showsHowFarALongOperationIs()
{
    {
        ProgressLine line(&m_terminal, "Reading", 100, 400);
        line.update(99);
        line.update(100);
        line.update(199);
        line.update(300);
    }
    QCOMPARE(m_terminal.data(), QByteArray("\r\x1b[KReading: 25 %\r\x1b[KReading: 75 %\r\x1b[K"));
}

void ProgressLineTest::showsNoMoreThanAll_data()
{
    QTest::addColumn<qint64>("total");

    QTest::newRow("all of the smallest total") << qint64(1);
    // As of a file that has grown meanwhile.
    QTest::newRow("more than all") << qint64(99);
    QTest::newRow("all") << qint64(100);
}

void ProgressLineTest::showsNoMoreThanAll()
{
    QFETCH(qint64, total);
    ProgressLine line(&m_terminal, "Reading", 1, total);
    line.update(std::max<qint64>(total, 100));
    QCOMPARE(m_terminal.data(), QByteArray("\r\x1b[KReading: 100 %"));
}

void ProgressLineTest::showsTheAmountWhereTheTotalIsNotKnown()
{
    ProgressLine line(&m_terminal, "Reading", 100, 0);
    line.update(150);
    QCOMPARE(m_terminal.data(), QByteArray("\r\x1b[KReading: 150"));
}

void ProgressLineTest::showsNothingWithoutATerminal()
{
    ProgressLine line(nullptr, "Reading", 1, 10);
    line.update(10);
}

QTEST_GUILESS_MAIN(ProgressLineTest)

#include "tst_progressline.moc"
