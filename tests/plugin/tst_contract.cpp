// SPDX-License-Identifier: MIT
#include "LoadedPlugin.h"
#include "ScriptedHost.h"

#include <QJsonObject>
#include <QSysInfo>
#include <QTest>

namespace
{
const char basePluginId[] = "com.quorin.skylarkdialer.plugin.IBasePlugin";
const char uiPluginId[] = "com.quorin.skylarkdialer.plugin.IUIPlugin";
const char notifyId[] = "com.quorin.skylarkdialer.plugin.INotify";
} // namespace

class tst_Contract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { scripted::Host::instance().reset(); }

    void tellsItsIdentityBeforeAnyCodeIsLoaded();
    void givesOneRootObjectUntilItIsDeleted();
    void answersInterfaceIdentifiers();
    void answersNothingElse_data();
    void answersNothingElse();
    void hasAMetaObjectOfNameAlone();
    void tellsItsIdentity();
    void returnsTheVersionWordAsItStands();
    void leavesTheObjectPointerOfAQueryAlone();
    void givesTheVerificationText();
    void runsTheSameOperationsThroughEveryView();
};

void tst_Contract::tellsItsIdentityBeforeAnyCodeIsLoaded()
{
    const QPluginLoader loader(LoadedPlugin::fileName());
    QCOMPARE(loader.metaData().value("IID").toString(), QString(uiPluginId));
    QCOMPARE(loader.metaData().value("className").toString(),
             QStringLiteral("NetInfoRecordUIPlugin"));
    const QJsonObject own = loader.metaData().value("MetaData").toObject();
    QCOMPARE(own.value("Name").toString(), QStringLiteral("NetInfoRecordUIPlugin"));
    QCOMPARE(own.value("ClassId").toString(),
             QStringLiteral("27A315A2-D587-498a-9FC5-7CF2738679DF"));
    QCOMPARE(own.value("Version").toInt(), 257);
#ifdef NETINFORECORD_WIRE_STATISTICS
    QCOMPARE(own.value("Statistics"), QJsonValue(true));
#else
    QCOMPARE(own.value("Statistics"), QJsonValue(false));
#endif
    QVERIFY(!loader.isLoaded());
}

void tst_Contract::givesOneRootObjectUntilItIsDeleted()
{
    LoadedPlugin plugin;
    const auto instance = LoadedPlugin::exported<QObject *(*)()>("qt_plugin_instance");
    QVERIFY(instance);
    QPointer<QObject> first = instance();
    QCOMPARE(instance(), first.data());
    QCOMPARE(plugin.root(), first.data());
    QVERIFY(!first->parent());
    delete first;
    QPointer<QObject> second = instance();
    QVERIFY(second);
    QCOMPARE(instance(), second.data());
}

void tst_Contract::answersInterfaceIdentifiers()
{
    LoadedPlugin plugin;
    QObject *root = plugin.root();
    void *ui = root->qt_metacast("IUIPlugin");
    void *notify = root->qt_metacast("INotify");
    QVERIFY(ui);
    QVERIFY(notify);
    QVERIFY(ui != notify);
    QCOMPARE(root->qt_metacast("NetInfoRecordUIPlugin"), static_cast<void *>(root));
    QCOMPARE(root->qt_metacast("QObject"), static_cast<void *>(root));
    QCOMPARE(root->qt_metacast(basePluginId), ui);
    QCOMPARE(root->qt_metacast(uiPluginId), ui);
    QCOMPARE(root->qt_metacast(notifyId), notify);
    QCOMPARE(static_cast<void *>(qobject_cast<IUIPlugin *>(root)), ui);
    QCOMPARE(static_cast<void *>(qobject_cast<IBasePlugin *>(root)), ui);
    QCOMPARE(static_cast<void *>(qobject_cast<INotify *>(root)), notify);
    QVERIFY(!root->qt_metacast(nullptr));
}

void tst_Contract::answersNothingElse_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name :
         {"com.quorin.skylarkdialer.plugin.iuiplugin", "com.quorin.skylarkdialer.plugin.inotify",
          "com.quorin.skylarkdialer.plugin.IDialupUIService", "IBasePlugin", "IDestroyEvent",
          "IBaseInterface", "netinforecorduiplugin", ""})
        QTest::newRow(*name ? name : "an empty name") << QByteArray(name);
}

void tst_Contract::answersNothingElse()
{
    QFETCH(QByteArray, name);
    LoadedPlugin plugin;
    QVERIFY(!plugin.root()->qt_metacast(name.constData()));
}

void tst_Contract::hasAMetaObjectOfNameAlone()
{
    LoadedPlugin plugin;
    const QMetaObject *meta = plugin.root()->metaObject();
    QCOMPARE(meta->className(), "NetInfoRecordUIPlugin");
    QCOMPARE(meta->superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta->methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(meta->propertyCount(), QObject::staticMetaObject.propertyCount());
    QCOMPARE(meta->enumeratorCount(), QObject::staticMetaObject.enumeratorCount());
    QCOMPARE(meta->classInfoCount(), 0);
    QCOMPARE(meta->constructorCount(), 0);
}

void tst_Contract::tellsItsIdentity()
{
    LoadedPlugin plugin;
    QCOMPARE(plugin.ui()->GetPluginName(), QStringLiteral("NetInfoRecordUIPlugin"));
    QCOMPARE(plugin.ui()->GetCLSID(), QStringLiteral("27A315A2-D587-498a-9FC5-7CF2738679DF"));
    QCOMPARE(plugin.ui()->GetVersion(), 257);
    QCOMPARE(plugin.ui()->GetPluginType(), 0);
    QCOMPARE(plugin.ui()->IsAllowRelease(), false);
    QCOMPARE(plugin.ui()->GetLastError(), 0);
    plugin.ui()->Release();
    QCOMPARE(plugin.ui()->GetVersion(), 257);
}

void tst_Contract::returnsTheVersionWordAsItStands()
{
    LoadedPlugin plugin;
    auto *version = LoadedPlugin::exported<qint32 *>("NET_INFO_RECORD_VERSION");
    QVERIFY(version);
    QCOMPARE(*version, 257);
    *version = 258;
    QCOMPARE(plugin.ui()->GetVersion(), 258);
    *version = 257;
}

void tst_Contract::leavesTheObjectPointerOfAQueryAlone()
{
    LoadedPlugin plugin;
    QObject *object = nullptr;
    for (int id : {0, 1, -1, 16401})
        QCOMPARE(plugin.ui()->QueryInterface(id, &object), 0);
    QVERIFY(!object);
    object = this;
    plugin.ui()->QueryInterface(1, &object);
    QCOMPARE(object, static_cast<QObject *>(this));
    QCOMPARE(plugin.ui()->QueryInterface(1, nullptr), 0);
}

void tst_Contract::givesTheVerificationText()
{
    LoadedPlugin plugin;
    const auto query =
        LoadedPlugin::exported<const char *(*)()>("qt_plugin_query_verification_data");
    QVERIFY(query);
    QCOMPARE(QString::fromLatin1(query()),
             QStringLiteral("pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.6.2\ndebug=false\n"
                            "buildkey=") +
                 QSysInfo::buildAbi());
}

void tst_Contract::runsTheSameOperationsThroughEveryView()
{
    LoadedPlugin plugin;
    IUIPlugin *ui = plugin.ui();
    auto *base = static_cast<IBaseInterface *>(ui);
    auto *destroy = static_cast<IDestroyEvent *>(ui);
    QVERIFY(static_cast<void *>(base) != static_cast<void *>(destroy));
    QCOMPARE(base->GetLastError(), 0);
    QCOMPARE(plugin.notify()->Notify(7, 0, 0), 0u);
    QVERIFY(plugin.historyWindow());
    destroy->OnDestroy();
    QVERIFY(!plugin.historyWindow());
}

QTEST_MAIN(tst_Contract)
#include "tst_contract.moc"
