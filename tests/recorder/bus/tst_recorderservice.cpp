// SPDX-License-Identifier: MIT
#include "ServiceTest.h"

#include "recorder/RecorderLock.h"

#include <QDBusArgument>
#include <QXmlStreamReader>

using recorder::Problem;
using recorder::RecorderLock;
using recorder::RecorderService;

namespace
{

constexpr std::chrono::hours anHour{1};

/// The elements of the recorder's interface, each with its attributes.
QStringList elementsOf(const QString &introspection)
{
    QStringList elements;
    bool isInside = false;
    QXmlStreamReader reader(introspection);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.name() == QLatin1String("interface"))
            isInside = reader.isStartElement() &&
                       reader.attributes().value("name") == RecorderService::interfaceName();
        if (!isInside || !reader.isStartElement())
            continue;
        QStringList attributes;
        for (const QXmlStreamAttribute &attribute : reader.attributes())
            attributes.append(attribute.name().toString() + QLatin1Char('=') +
                              attribute.value().toString());
        attributes.sort();
        elements.append(reader.name().toString() + QLatin1Char(' ') +
                        attributes.join(QLatin1Char(' ')));
    }
    return elements;
}

} // namespace

/// What programs on the bus are told of a recorder.
class TestRecorderService : public ServiceTest
{
    Q_OBJECT

private slots:
    void tellsThatTheHistoryHasChanged();
    void showsWhetherItRecords();
    void showsThatItWaitsForAnotherRecorder();
    void tellsFiguresWhileSomebodyWatches();
    void tellsNoFiguresToNobody();
    void tellsFiguresOncePerInterval();
    void tellsFiguresUntilTheLastListenerWantsNoMore();
    void tellsNoFiguresToAListenerThatHasDied();
    void asksForFiguresMoreOftenWhileSomebodyWatches();
    void asksForFiguresOftenInTheForeground();
    void introspectsAsDescribed();
    void changesNothing();

private:
    /// Begins a connection, which is told to whoever watches.
    void connectWatched();
    /// Ends it, which the figures do not tell.
    void disconnectUnwatched();
    /// Milliseconds from one question for figures to the next.
    int ticks() const { return m_recorder->findChild<QTimer *>("ticks")->interval(); }
};

void TestRecorderService::tellsThatTheHistoryHasChanged()
{
    publish(anHour);
    connectLink(7, "ppp0", 100, 200);
    QTRY_COMPARE(m_client->received("ConnectionBegan").size(), 1);
    QVERIFY(m_client->received("HistoryChanged").isEmpty());
    connectLink(8, "ppp1", 100, 200);
    m_links->tell(goneLink(7, "ppp0", 1100, 5200));
    m_links->tell(goneLink(8, "ppp1", 1100, 5200));
    QTRY_COMPARE(m_client->received("ConnectionEnded").size(), 2);
    // Once in the interval.
    QTRY_COMPARE(m_client->received("HistoryChanged").size(), 1);
    connectLink(9, "ppp2", 100, 200);
    m_links->tell(goneLink(9, "ppp2", 1100, 5200));
    QTRY_COMPARE(m_client->received("ConnectionEnded").size(), 3);
    QCOMPARE(m_client->received("HistoryChanged").size(), 1);
}

void TestRecorderService::showsWhetherItRecords()
{
    publish();
    QCOMPARE(m_client->property("Recording"), QVariant(true));
    QCOMPARE(m_client->property("Waiting"), QVariant(false));
    QCOMPARE(m_client->property("Problem"), QVariant(QString()));
    QCOMPARE(m_client->property("History"), QVariant(QFileInfo(m_path).canonicalFilePath()));
    m_links->isBlind = true;
    Problem problem;
    problem.kind = Problem::Kind::LinksUnwatchable;
    emit m_links->failed(problem);
    QTRY_COMPARE(m_client->toldValues("Recording"), QVariantList({QVariant(false)}));
    const QString text = QString("problem %1").arg(int(problem.kind));
    QTRY_COMPARE(m_client->toldValues("Problem"), QVariantList({text}));
    QCOMPARE(m_client->property("Problem"), QVariant(text));
    m_links->isBlind = false;
    QTRY_COMPARE(m_client->toldValues("Recording"), QVariantList({false, true}));
    QTRY_COMPARE(m_client->toldValues("Problem"), QVariantList({text, QString()}));
}

void TestRecorderService::showsThatItWaitsForAnotherRecorder()
{
    QVERIFY(history::Store::openOrCreate(m_path.toStdString()));
    auto other = std::make_unique<RecorderLock>(QFileInfo(m_path).canonicalFilePath());
    QCOMPARE(other->take(), RecorderLock::Outcome::Taken);
    publish();
    QTRY_COMPARE(m_client->property("Waiting"), QVariant(true));
    QCOMPARE(m_client->property("Recording"), QVariant(false));
    other.reset();
    QTRY_COMPARE(m_client->toldValues("Recording"), QVariantList({QVariant(true)}));
    QCOMPARE(m_client->property("Waiting"), QVariant(false));
}

void TestRecorderService::tellsFiguresWhileSomebodyWatches()
{
    publish();
    QCOMPARE(m_client->call("Watch").type(), QDBusMessage::ReplyMessage);
    connectLink(7, "ppp0", 100, 200);
    move(1100, 5200);
    const auto toldBytes = [this] {
        const QVariantList told = m_client->toldValues("Connections");
        return told.isEmpty()
                   ? -1
                   : connectionsIn(told.last()).value(0).value("UploadedBytes").toLongLong();
    };
    QTRY_COMPARE(toldBytes(), 1000);
    move(3100, 5200);
    QTRY_COMPARE(toldBytes(), 3000);
    m_links->tell(goneLink(7, "ppp0", 3100, 5200));
    QTRY_VERIFY(connectionsIn(m_client->toldValues("Connections").last()).isEmpty());
}

void TestRecorderService::tellsNoFiguresToNobody()
{
    publish();
    connectLink(7, "ppp0", 100, 200);
    move(1100, 5200);
    QTRY_COMPARE(m_client->connections().value(0).value("UploadedBytes").toLongLong(), 1000);
    m_links->tell(goneLink(7, "ppp0", 1100, 5200));
    // What comes later tells that nothing else was to come before.
    QTRY_COMPARE(m_client->received("HistoryChanged").size(), 1);
    QVERIFY(m_client->toldValues("Connections").isEmpty());
}

void TestRecorderService::tellsFiguresOncePerInterval()
{
    publish(anHour);
    QCOMPARE(m_client->call("Watch").type(), QDBusMessage::ReplyMessage);
    connectLink(7, "ppp0", 100, 200);
    connectLink(8, "ppp1", 100, 200);
    QTRY_COMPARE(m_client->toldValues("Connections").size(), 1);
    // All that came together.
    QCOMPARE(connectionsIn(m_client->toldValues("Connections").first()).size(), 2);
    for (int step = 1; step <= 5; ++step) {
        move(100 + step * 1000, 200);
        QTRY_COMPARE(m_client->connections().value(0).value("UploadedBytes").toLongLong(),
                     step * 1000);
    }
    QCOMPARE(m_client->toldValues("Connections").size(), 1);
}

void TestRecorderService::connectWatched()
{
    const auto before = m_client->toldValues("Connections").size();
    connectLink(7, "ppp0", 100, 200);
    QTRY_COMPARE(m_client->toldValues("Connections").size(), before + 1);
}

void TestRecorderService::disconnectUnwatched()
{
    m_links->tell(goneLink(7, "ppp0", 1100, 5200));
    // It comes after what was to be told of the figures.
    QTRY_COMPARE(m_client->received("HistoryChanged").size(), 1);
    QCOMPARE(connectionsIn(m_client->toldValues("Connections").last()).size(), 1);
}

void TestRecorderService::tellsFiguresUntilTheLastListenerWantsNoMore()
{
    publish();
    const auto second = makeClient();
    QCOMPARE(second->call("Watch").type(), QDBusMessage::ReplyMessage);
    QCOMPARE(m_client->call("Watch").type(), QDBusMessage::ReplyMessage);
    // Once is enough, however often it was asked for.
    QCOMPARE(m_client->call("Watch").type(), QDBusMessage::ReplyMessage);
    QCOMPARE(m_client->call("Unwatch").type(), QDBusMessage::ReplyMessage);
    connectWatched();
    QCOMPARE(second->call("Unwatch").type(), QDBusMessage::ReplyMessage);
    disconnectUnwatched();
}

void TestRecorderService::tellsNoFiguresToAListenerThatHasDied()
{
    publish();
    const auto listener = makeClient();
    QCOMPARE(listener->call("Watch").type(), QDBusMessage::ReplyMessage);
    connectWatched();
    const QString name = listener->name();
    QVERIFY(m_client->isThere(name));
    listener->leave();
    QTRY_VERIFY(!m_client->isThere(name));
    disconnectUnwatched();
}

void TestRecorderService::asksForFiguresMoreOftenWhileSomebodyWatches()
{
    publish(std::chrono::milliseconds(1), RecorderService::Place::Background);
    connectLink(7, "ppp0", 100, 200);
    const int often = int(shortIntervals.tick.count());
    const int seldom = often * shortIntervals.ticksPerCheckpoint;
    QTRY_COMPARE(ticks(), seldom);
    QCOMPARE(m_client->call("Watch").type(), QDBusMessage::ReplyMessage);
    QTRY_COMPARE(ticks(), often);
    QCOMPARE(m_client->call("Unwatch").type(), QDBusMessage::ReplyMessage);
    QTRY_COMPARE(ticks(), seldom);
}

void TestRecorderService::asksForFiguresOftenInTheForeground()
{
    publish();
    connectLink(7, "ppp0", 100, 200);
    QCOMPARE(m_client->call("Watch").type(), QDBusMessage::ReplyMessage);
    QCOMPARE(m_client->call("Unwatch").type(), QDBusMessage::ReplyMessage);
    for (int i = 0; i < shortIntervals.ticksPerCheckpoint; ++i) {
        move(100 + i, 200);
        QCOMPARE(ticks(), int(shortIntervals.tick.count()));
    }
}

void TestRecorderService::introspectsAsDescribed()
{
    publish();
    QFile file(QStringLiteral(INTROSPECTION));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList described = elementsOf(file.readAll());
    QVERIFY(described.contains("property access=read name=Recording type=b"));
    QCOMPARE(elementsOf(m_client->introspection()), described);
}

void TestRecorderService::changesNothing()
{
    publish();
    const QString introspection = m_client->introspection();
    QVERIFY(introspection.contains("access=\"read\""));
    QVERIFY(!introspection.contains("access=\"readwrite\""));
    QVERIFY(!introspection.contains("access=\"write\""));
}

QTEST_GUILESS_MAIN(TestRecorderService)
#include "tst_recorderservice.moc"
