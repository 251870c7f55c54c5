// SPDX-License-Identifier: MIT
#include "DialupContainer.h"
#include "LoadedPlugin.h"
#include "LogCapture.h"
#include "ScriptedHost.h"

#include <QTest>

#include <cstring>

namespace
{

/// The function in a slot of an object's virtual table. The complete-object
/// and the deleting destructor fill slots 0 and 1, so operation n of an
/// interface with a virtual destructor is slot n + 1.
template <typename Function>
Function slot(void *object, int index)
{
    void **table = *static_cast<void ***>(object);
    Function function;
    static_assert(sizeof(function) == sizeof(table[index]));
    std::memcpy(&function, &table[index], sizeof(function));
    return function;
}

constexpr int operation(int number)
{
    return number + 1;
}

const char uiPluginId[] = "com.quorin.skylarkdialer.plugin.IUIPlugin";

} // namespace

class tst_Slots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { scripted::Host::instance().reset(); }

    void uiPluginKeepsItsSlots();
    void destroyEventIsABaseOfItsOwn();
    void notifyKeepsItsSlot();
    void containerIsAskedThroughItsTenthSlot();
    void deletesThroughAnInterface();
};

void tst_Slots::uiPluginKeepsItsSlots()
{
    LoadedPlugin plugin;
    void *ui = plugin.root()->qt_metacast(uiPluginId);
    LogCapture log;

    slot<void (*)(void *)>(ui, operation(1))(ui);             // Release
    QCOMPARE(slot<int (*)(void *)>(ui, operation(2))(ui), 0); // GetLastError
    QVERIFY(log.take().isEmpty());
    QVERIFY(slot<bool (*)(void *)>(ui, operation(3))(ui));
    QVERIFY(log.take().last().contains(QLatin1String(": Init: 121")));
    QCOMPARE(slot<int (*)(void *)>(ui, operation(4))(ui), 0); // GetPluginType
    QCOMPARE(slot<QString (*)(void *)>(ui, operation(5))(ui),
             QStringLiteral("27A315A2-D587-498a-9FC5-7CF2738679DF"));
    QCOMPARE(slot<int (*)(void *)>(ui, operation(6))(ui), 257);
    QCOMPARE(slot<QString (*)(void *)>(ui, operation(7))(ui),
             QStringLiteral("NetInfoRecordUIPlugin"));
    QVERIFY(!slot<bool (*)(void *)>(ui, operation(8))(ui)); // IsAllowRelease
    QObject *object = nullptr;
    QCOMPARE((slot<int (*)(void *, int, QObject **)>(ui, operation(9))(ui, 1, &object)), 0);
    QVERIFY(log.take().isEmpty());

    QRect rect(1, 2, 300, 200);
    QVERIFY(
        (slot<bool (*)(void *, QWidget *, QRect &)>(ui, operation(10))(ui, plugin.area(), rect)));
    QVERIFY(log.take().last().contains(QLatin1String(": ShowWindow: 79")));
    QCOMPARE(plugin.container()->geometry(), rect);
    rect = QRect(3, 4, 200, 100);
    slot<void (*)(void *, QRect &)>(ui, operation(13))(ui, rect);
    QVERIFY(log.take().last().contains(QLatin1String(": FitSize: 225")));
    QCOMPARE(plugin.container()->geometry(), rect);
    slot<void (*)(void *)>(ui, operation(12))(ui);
    QVERIFY(log.take().last().contains(QLatin1String(": Hide: 202")));
    QCOMPARE(slot<int (*)(void *)>(ui, operation(11))(ui), 0);
    QVERIFY(log.take().last().contains(QLatin1String(": DoModal: 177")));
    QVERIFY(!slot<bool (*)(void *)>(ui, operation(14))(ui)); // IsReady
    const QString language = QStringLiteral("en");
    QVERIFY((slot<bool (*)(void *, const QString &)>(ui, operation(15))(ui, language)));
    QVERIFY(log.take().last().contains(QLatin1String(": ChangeLang: 252")));
}

void tst_Slots::destroyEventIsABaseOfItsOwn()
{
    LoadedPlugin plugin;
    IUIPlugin *ui = plugin.ui();
    void *view = static_cast<IDestroyEvent *>(ui);
    QVERIFY(view != static_cast<void *>(static_cast<IBaseInterface *>(ui)));
    // Two interfaces without data: the second base follows the first directly.
    QCOMPARE(static_cast<char *>(view) - reinterpret_cast<char *>(ui), qptrdiff(sizeof(void *)));

    LogCapture log;
    slot<void (*)(void *)>(view, operation(2))(view);
    QVERIFY(log.take().last().contains(QLatin1String("UnSDKRegisterEvent exit")));
    slot<void (*)(void *)>(view, operation(1))(view);
    QVERIFY(log.take().last().contains(QLatin1String("OnDestroy: 490")));
}

void tst_Slots::notifyKeepsItsSlot()
{
    LoadedPlugin plugin;
    void *notify = plugin.root()->qt_metacast("com.quorin.skylarkdialer.plugin.INotify");
    LogCapture log;
    using Notify = unsigned int (*)(void *, unsigned int, unsigned int, unsigned int);
    QCOMPARE(slot<Notify>(notify, operation(1))(notify, 5, 6, 7), 0u);
    QVERIFY(log.take().last().contains(QLatin1String(": Notify: 313")));
}

void tst_Slots::containerIsAskedThroughItsTenthSlot()
{
    // No virtual destructor here: the first operation fills slot 0.
    scripted::DialupContainer container;
    void *view = static_cast<IPluginContainer *>(&container);
    using GetPlugin = QObject *(*)(void *, const QString &, int);
    const QString classId = QStringLiteral("any");
    QCOMPARE(slot<GetPlugin>(view, 9)(view, classId, 3),
             static_cast<QObject *>(&container.service));
    QCOMPARE(container.askedClassId, classId);
    QCOMPARE(container.askedType, 3);
    QCOMPARE(container.reservedCalls, 0);
}

void tst_Slots::deletesThroughAnInterface()
{
    LoadedPlugin plugin;
    QPointer<QObject> root = plugin.root();
    void *notify = root->qt_metacast("INotify");
    slot<void (*)(void *)>(notify, 1)(notify); // the deleting destructor
    QVERIFY(!root);
    root = plugin.root();
    void *ui = root->qt_metacast(uiPluginId);
    slot<void (*)(void *)>(ui, 1)(ui);
    QVERIFY(!root);
}

QTEST_MAIN(tst_Slots)
#include "tst_slots.moc"
