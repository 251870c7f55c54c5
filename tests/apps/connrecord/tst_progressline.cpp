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
