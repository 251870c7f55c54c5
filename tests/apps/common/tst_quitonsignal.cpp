// SPDX-License-Identifier: MIT
#include "apps/common/QuitOnSignal.h"

#include <QCoreApplication>
#include <QTest>
#include <QTimer>

#include <csignal>
#include <memory>

using common::QuitOnSignal;

namespace
{

using Handler = void (*)(int);

/// What the signal does at the moment.
Handler handlerOf(int signal)
{
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler;
}

void handleOtherwise(int /*signal*/) {}

} // namespace

class QuitOnSignalTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void endsTheEventLoop_data() { addSignals(); }
    void endsTheEventLoop();
    void leavesAnIgnoredSignalIgnored_data() { addSignals(); }
    void leavesAnIgnoredSignalIgnored();
    void givesASignalBackAsItWas_data() { addSignals(); }
    void givesASignalBackAsItWas();

private:
    static void addSignals();
};

void QuitOnSignalTest::cleanup()
{
    for (const int signal : {SIGHUP, SIGINT, SIGTERM})
        std::signal(signal, SIG_DFL);
}

void QuitOnSignalTest::addSignals()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGHUP") << SIGHUP;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
}

void QuitOnSignalTest::endsTheEventLoop()
{
    QFETCH(int, signal);
    const QuitOnSignal quitOnSignal;
    QTimer::singleShot(0, [signal] { raise(signal); });
    QCOMPARE(QCoreApplication::exec(), 0);
    QVERIFY2(handlerOf(signal) == SIG_DFL, "a second one would not end the program at once");
}

/// As nohup asks for, and a shell for what it runs in the background.
void QuitOnSignalTest::leavesAnIgnoredSignalIgnored()
{
    QFETCH(int, signal);
    std::signal(signal, SIG_IGN);
    {
        const QuitOnSignal quitOnSignal;
        QVERIFY(handlerOf(signal) == SIG_IGN);
        const int other = signal == SIGTERM ? SIGINT : SIGTERM;
        QVERIFY(handlerOf(other) != SIG_DFL);
    }
    QVERIFY(handlerOf(signal) == SIG_IGN);
}

void QuitOnSignalTest::givesASignalBackAsItWas()
{
    QFETCH(int, signal);
    std::signal(signal, handleOtherwise);
    auto quitOnSignal = std::make_unique<QuitOnSignal>();
    QVERIFY(handlerOf(signal) != handleOtherwise);
    quitOnSignal.reset();
    QVERIFY(handlerOf(signal) == handleOtherwise);
}

QTEST_GUILESS_MAIN(QuitOnSignalTest)
#include "tst_quitonsignal.moc"
