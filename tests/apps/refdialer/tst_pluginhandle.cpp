// SPDX-License-Identifier: MIT
#include "apps/refdialer/Failure.h"
#include "apps/refdialer/PluginHandle.h"

#include <QDir>
#include <QFile>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>

using refdialer::PluginHandle;

class TestPluginHandle : public QObject
{
    Q_OBJECT

private slots:
    void loadsTheBuiltPlugin();
    void deletesTheRootObject();
    void looksForThePluginBesideTheProgram();
    void saysWhyAPluginCannotBeLoaded_data();
    void saysWhyAPluginCannotBeLoaded();
    void saysThatAPluginIsForAnotherQt();
    void adoptsNoObjectWithoutTheInterfaces();

private:
    static QString problemWith(const QString &file);
    QString write(const QString &name, const QByteArray &content) const;

    QTemporaryDir m_folder;
};

namespace
{

QByteArray contentOf(const QString &name)
{
    QFile file(name);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// Where a plug-in says which major version of Qt it was built for: two
/// bytes behind one of these marks, depending on that version. -1 for nowhere.
int placeOfQtVersion(const QByteArray &plugin)
{
    for (const QByteArray &mark : {QByteArray("qt-project!", 12), QByteArray("QTMETADATA !")}) {
        for (auto at = plugin.indexOf(mark); at >= 0; at = plugin.indexOf(mark, at + 1)) {
            const auto place = at + mark.size() + 1;
            if (place + 1 < plugin.size() && plugin.at(place) == QT_VERSION_MAJOR &&
                plugin.at(place + 1) == QT_VERSION_MINOR)
                return int(place);
        }
    }
    return -1;
}

} // namespace

QString TestPluginHandle::problemWith(const QString &file)
{
    try {
        PluginHandle::load(file);
        return {};
    } catch (const refdialer::Failure &failure) {
        return failure.code == refdialer::ExitCode::PluginNotLoaded ? failure.message : QString();
    }
}

QString TestPluginHandle::write(const QString &name, const QByteArray &content) const
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QFile::WriteOnly) || file.write(content) != content.size())
        return {};
    return file.fileName();
}

void TestPluginHandle::loadsTheBuiltPlugin()
{
    const auto plugin = PluginHandle::load(PLUGIN_FILE);
    QCOMPARE(plugin->classId(), QString("27A315A2-D587-498a-9FC5-7CF2738679DF"));
    QCOMPARE(QString(plugin->root()->metaObject()->className()), QString("NetInfoRecordUIPlugin"));
}

void TestPluginHandle::deletesTheRootObject()
{
    auto plugin = PluginHandle::load(PLUGIN_FILE);
    const QPointer<QObject> root = plugin->root();
    plugin.reset();
    QVERIFY(root.isNull());
}

void TestPluginHandle::looksForThePluginBesideTheProgram()
{
    const QString file = PluginHandle::defaultFile();
    QVERIFY(file.endsWith("/netinforecord/libNetInfoRecordUIPlugin.so"));
    QVERIFY(QDir::isAbsolutePath(file));
}

void TestPluginHandle::saysWhyAPluginCannotBeLoaded_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    const QByteArray plugin = contentOf(PLUGIN_FILE);
    QVERIFY(plugin.size() > 10000);
    QTest::newRow("no file") << m_folder.filePath("missing.so") << "is not there";
    QTest::newRow("a folder") << m_folder.path() << "is not there";
    QTest::newRow("a text") << write("text.so", "Not a library.\n") << "is not a plug-in for Qt";
    QTest::newRow("an empty file") << write("empty.so", "") << "is not a plug-in for Qt";
    QTest::newRow("the beginning of a plug-in")
        << write("part.so", plugin.left(4000)) << "is not a plug-in for Qt";
    QTest::newRow("a library that is no plug-in") << NO_PLUGIN_FILE << "is not a plug-in for Qt";
    QTest::newRow("somebody else's plug-in") << FOREIGN_PLUGIN_FILE << "org.example.OtherInterface";
    QTest::newRow("a symbol that no library gives")
        << UNLINKED_PLUGIN_FILE << "missingInEveryLibrary";
    QTest::newRow("no interfaces behind the right metadata")
        << EMPTY_PLUGIN_FILE << "com.quorin.skylarkdialer.plugin.INotify";
}

void TestPluginHandle::saysWhyAPluginCannotBeLoaded()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    const QString problem = problemWith(file);
    QVERIFY2(problem.contains(file), qPrintable(problem));
    QVERIFY2(problem.contains(reason), qPrintable(problem));
    QVERIFY2(problem.contains("--plugin"), qPrintable(problem));
}

void TestPluginHandle::saysThatAPluginIsForAnotherQt()
{
    QByteArray content = contentOf(PLUGIN_FILE);
    const int major = placeOfQtVersion(content);
    QVERIFY(major > 0);
    content[major] = 9;
    const QString problem = problemWith(write("newer.so", content));
    QVERIFY2(problem.contains("newer.so"), qPrintable(problem));
    QVERIFY2(problem.contains("incompatible Qt library"), qPrintable(problem));
    QVERIFY2(problem.contains("(9."), qPrintable(problem));
}

void TestPluginHandle::adoptsNoObjectWithoutTheInterfaces()
{
    QObject object;
    QVERIFY(!PluginHandle::adopt(&object));
    QVERIFY(!PluginHandle::adopt(nullptr));
}

QTEST_MAIN(TestPluginHandle)
#include "tst_pluginhandle.moc"
