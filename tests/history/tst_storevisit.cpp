// SPDX-License-Identifier: MIT
#include "history/Store.h"

#include "StoreSamples.h"
#include "StoreTestCase.h"

#include <QTest>

#include <stdexcept>

using namespace history;

namespace
{

constexpr std::int64_t firstHour = 1700002800;

OpenConnection lasting(const std::string &profile, std::int64_t link, std::int64_t startUtc)
{
    OpenConnection open;
    open.profile = profile;
    open.bootId = "boot";
    open.interfaceIndex = link;
    open.startUtc = open.updatedUtc = startUtc;
    return open;
}

Connection withHours(Connection connection)
{
    connection.uploadedBytes = 7;
    connection.downloadedBytes = 3;
    connection.hours = {{firstHour, false, 5, 1}, {firstHour, true, 2, 2}};
    return connection;
}

/// What a visit shows: "profile/hours" of each, those that last in brackets.
QString visited(const Store &store, const ConnectionSelection &selection = {})
{
    QStringList texts;
    const auto text = [](const ConnectionBase &each) {
        const QString profile = QString::fromStdString(each.profile);
        return each.hours.empty() ? profile : profile + QString("/%1").arg(each.hours.size());
    };
    const auto count = store.visit(
        selection, [&](const Connection &each) { texts.append(text(each)); },
        [&](const OpenConnection &each) { texts.append('[' + text(each) + ']'); });
    if (!count)
        return QString::fromStdString(count.error().message);
    return count.value() == std::size_t(texts.size()) ? texts.join(' ') : "another number";
}

} // namespace

/// Connections that a store shows one by one.
class StoreVisitTest : public StoreTestCase
{
    Q_OBJECT

private slots:
    void showsThemByStartThenByKey();
    void showsHoursIfTheyAreWanted();
    void showsTheOnesThatStartedLast_data();
    void showsTheOnesThatStartedLast();
    void showsThoseThatCameLater();
    void showsThoseThatLastBehind();
    void showsOneMoment();
    void passesOnWhatAVisitorThrows();
    void showsNothingWithoutAHistory();
};

void StoreVisitTest::showsThemByStartThenByKey()
{
    const Store store = storeWith(m_path, {connection("c", 30, 40), connection("a", 10, 50),
                                           connection("b1", 20, 20), connection("b2", 20, 20)});
    QCOMPARE(visited(store), QString("a b1 b2 c"));
    QCOMPARE(store.count().value(), std::int64_t(4));
    ConnectionSelection some;
    some.range = {20, 30};
    QCOMPARE(visited(store, some), QString("b1 b2"));
    some.isWanted = [](const ConnectionBase &each) { return each.profile != "b1"; };
    QCOMPARE(visited(store, some), QString("b2"));
}

void StoreVisitTest::showsHoursIfTheyAreWanted()
{
    const Store store =
        storeWith(m_path, {withHours(connection("a", firstHour, firstHour + 1)),
                           connection("b", firstHour + 1, firstHour + 2),
                           withHours(connection("c", firstHour + 2, firstHour + 3))});
    ConnectionSelection selection;
    QCOMPARE(visited(store, selection), QString("a b c"));
    selection.withHours = true;
    QCOMPARE(visited(store, selection), QString("a/2 b c/2"));
    selection.most = 2;
    QCOMPARE(visited(store, selection), QString("b c/2"));
}

void StoreVisitTest::showsTheOnesThatStartedLast_data()
{
    QTest::addColumn<int>("most");
    QTest::addColumn<QString>("all");
    QTest::addColumn<QString>("even");

    QTest::newRow("none") << 0 << ""
                          << "";
    QTest::newRow("one") << 1 << "4"
                         << "4";
    QTest::newRow("of those that start together, the higher keys") << 2 << "3 4"
                                                                   << "2 4";
    QTest::newRow("three") << 3 << "2 3 4"
                           << "0 2 4";
    QTest::newRow("more than there are") << 9 << "0 1 2 3 4"
                                         << "0 2 4";
}

void StoreVisitTest::showsTheOnesThatStartedLast()
{
    QFETCH(int, most);
    const Store store = storeWith(m_path, {connection("0", 10, 11), connection("1", 20, 21),
                                           connection("2", 20, 21), connection("3", 20, 21),
                                           connection("4", 30, 31)});
    ConnectionSelection selection;
    selection.most = static_cast<std::size_t>(most);
    QTEST(visited(store, selection), "all");
    selection.isWanted = [](const ConnectionBase &each) {
        return std::stoi(each.profile) % 2 == 0;
    };
    QTEST(visited(store, selection), "even");
}

void StoreVisitTest::showsThoseThatCameLater()
{
    Store store = storeWith(m_path, {connection("1", 30, 40), connection("2", 20, 21),
                                     connection("3", 10, 11), connection("4", 40, 41)});
    QVERIFY(store.begin(lasting("open", 1, 5)));
    ConnectionSelection selection;
    selection.afterKey = 2;
    QCOMPARE(visited(store, selection), QString("3 4 [open]"));
    selection.most = 1;
    QCOMPARE(visited(store, selection), QString("4 [open]"));
    selection.most = 3;
    QCOMPARE(visited(store, selection), QString("3 4 [open]"));
    selection.afterKey = 4;
    QCOMPARE(visited(store, selection), QString("[open]"));
}

void StoreVisitTest::showsThoseThatLastBehind()
{
    Store store = storeWith(m_path, {connection("late", 50, 60)});
    for (const OpenConnection &open :
         {lasting("early", 1, 10), lasting("other", 2, 20), lasting("later", 3, 30)})
        QVERIFY(store.begin(open));
    QCOMPARE(visited(store), QString("late [early] [other] [later]"));
    ConnectionSelection some;
    some.range.fromUtc = 20;
    QCOMPARE(visited(store, some), QString("late [other] [later]"));
    some.isWanted = [](const ConnectionBase &each) { return each.profile != "other"; };
    QCOMPARE(visited(store, some), QString("late [later]"));
    some.range.untilUtc = 30;
    QCOMPARE(visited(store, some), QString());

    QStringList finished;
    QVERIFY(store.visit({}, [&](const Connection &each) {
        finished.append(QString::fromStdString(each.profile));
    }));
    QCOMPARE(finished, QStringList("late"));
}

void StoreVisitTest::showsOneMoment()
{
    const Store store = storeWith(m_path, {connection("a", 10, 11), connection("b", 20, 21)});
    auto other = Store::openOrCreate(m_path);
    int shown = 0;
    QVERIFY(store.visit({}, [&](const Connection & /*connection*/) {
        QVERIFY(other.value().add(connection("new", 30, 31)));
        ++shown;
    }));
    QCOMPARE(shown, 2);
    QCOMPARE(visited(store), QString("a b new new"));
}

void StoreVisitTest::passesOnWhatAVisitorThrows()
{
    Store store = storeWith(m_path, {connection("a", 10, 11), connection("b", 20, 21)});
    int shown = 0;
    try {
        store.visit({}, [&](const Connection & /*connection*/) {
            ++shown;
            throw std::runtime_error("enough");
        });
        QFAIL("the visit went on");
    } catch (const std::runtime_error &error) {
        QCOMPARE(error.what(), "enough");
    }
    QCOMPARE(shown, 1);
    QVERIFY(store.add(connection("c", 30, 31)));
    QCOMPARE(visited(store), QString("a b c"));
}

void StoreVisitTest::showsNothingWithoutAHistory()
{
    const auto store = Store::openForReading(m_path);
    QCOMPARE(visited(store.value()), QString());
    QCOMPARE(store.value().count().value(), std::int64_t(0));
}

QTEST_GUILESS_MAIN(StoreVisitTest)

#include "tst_storevisit.moc"
