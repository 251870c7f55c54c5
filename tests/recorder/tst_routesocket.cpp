// SPDX-License-Identifier: MIT
#include "recorder/RouteSocket.h"

#include <QTest>

#include <cerrno>

using recorder::RouteSocket;

class RouteSocketTest : public QObject
{
    Q_OBJECT

private slots:
    void waitsNoLongerAfterAnEarlierInterruption();
};

/// What a call that came before has left is no reason to wait again.
void RouteSocketTest::waitsNoLongerAfterAnEarlierInterruption()
{
    RouteSocket socket;
    QCOMPARE(socket.open(), 0);
    const auto isNewsThere = [&socket] {
        errno = EINTR;
        return socket.waitForMessages(0);
    };
    while (isNewsThere())
        QCOMPARE(socket.receive([](const nlmsghdr &) {}), RouteSocket::Outcome::Received);
}

QTEST_GUILESS_MAIN(RouteSocketTest)

#include "tst_routesocket.moc"
