// SPDX-License-Identifier: MIT
// Describes the binary interface as this build has it and compares that with the
// description in interface.txt.
#include "IPluginContainer.h"
#include "KoraStatistics.h"
#include "LoadedPlugin.h"

#include <QCoreApplication>
#include <QFile>
#include <QMetaMethod>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <cstddef>
#include <cstring>

namespace
{

/// The place of a virtual operation in its table. A pointer to one holds the
/// distance from the table's start in bytes, plus one.
template <typename Operation>
std::ptrdiff_t placeOf(Operation operation)
{
    std::ptrdiff_t words[2];
    static_assert(sizeof(operation) == sizeof words);
    std::memcpy(words, &operation, sizeof words);
    return (words[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void *));
}

QStringList output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s failed", qPrintable(program));
    return QString::fromLocal8Bit(process.readAllStandardOutput())
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

#define PLACE(Interface, operation)                                                                \
    QStringLiteral("slot " #Interface " %1 " #operation).arg(placeOf(&Interface::operation))
#define OFFSET(Structure, field)                                                                   \
    QStringLiteral("field " #Structure " %1 " #field " %2 bytes")                                  \
        .arg(offsetof(Structure, field))                                                           \
        .arg(sizeof(Structure::field))

class tst_Interface : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isTheOneThatIsDescribed();

private:
    static QStringList places();
    static QStringList bases();
    static QStringList fields();
    static QStringList windowSlots();
    static QStringList symbols();
};

QStringList tst_Interface::places()
{
    return {PLACE(IBaseInterface, Release),     PLACE(IBaseInterface, GetLastError),
            PLACE(IDestroyEvent, OnDestroy),    PLACE(IDestroyEvent, UnSDKRegisterEvent),
            PLACE(IBasePlugin, Init),           PLACE(IBasePlugin, GetPluginType),
            PLACE(IBasePlugin, GetCLSID),       PLACE(IBasePlugin, GetVersion),
            PLACE(IBasePlugin, GetPluginName),  PLACE(IBasePlugin, IsAllowRelease),
            PLACE(IBasePlugin, QueryInterface), PLACE(IUIPlugin, ShowWindow),
            PLACE(IUIPlugin, DoModal),          PLACE(IUIPlugin, Hide),
            PLACE(IUIPlugin, FitSize),          PLACE(IUIPlugin, IsReady),
            PLACE(IUIPlugin, ChangeLang),       PLACE(INotify, Notify),
            PLACE(IPluginContainer, Reserved1), PLACE(IPluginContainer, Reserved9),
            PLACE(IPluginContainer, GetPlugin)};
}

QStringList tst_Interface::bases()
{
    LoadedPlugin plugin;
    const auto *ui = plugin.ui();
    const auto distance = [ui](const void *base) {
        return static_cast<const char *>(base) - reinterpret_cast<const char *>(ui);
    };
    return {
        QStringLiteral("base IUIPlugin %1 IBaseInterface")
            .arg(distance(static_cast<const IBaseInterface *>(ui))),
        QStringLiteral("base IUIPlugin %1 IDestroyEvent")
            .arg(distance(static_cast<const IDestroyEvent *>(ui))),
    };
}

QStringList tst_Interface::fields()
{
    return {QStringLiteral("size _KORA_ST_CONNRECORD %1").arg(sizeof(_KORA_ST_CONNRECORD)),
            OFFSET(_KORA_ST_CONNRECORD, szProfileName),
            OFFSET(_KORA_ST_CONNRECORD, szStartTime),
            OFFSET(_KORA_ST_CONNRECORD, szEndTime),
            OFFSET(_KORA_ST_CONNRECORD, szDuration),
            OFFSET(_KORA_ST_CONNRECORD, szUploadBytes),
            OFFSET(_KORA_ST_CONNRECORD, szDownloadBytes),
            OFFSET(_KORA_ST_CONNRECORD, szExtraText1),
            OFFSET(_KORA_ST_CONNRECORD, szExtraText2)};
}

/// In the order of their indexes, by which a host may call them.
QStringList tst_Interface::windowSlots()
{
    LoadedPlugin plugin;
    const QMetaObject &type = *plugin.historyWindow()->metaObject();
    QStringList lines;
    for (int index = type.methodOffset(); index < type.methodCount(); ++index)
        lines.append(QStringLiteral("method %1 %2 %3")
                         .arg(QLatin1String(type.className()))
                         .arg(index - type.methodOffset())
                         .arg(QLatin1String(type.method(index).methodSignature())));
    return lines;
}

/// What the library gives, and what it asks of a host.
QStringList tst_Interface::symbols()
{
    QStringList lines;
    for (const QString &line : output(NM, {"-D", "--defined-only", LoadedPlugin::fileName()})) {
        QString name = line.section(QLatin1Char(' '), -2).section(QLatin1Char('@'), 0, 0);
        // Qt's versions name it differently, each for itself.
        name.replace(QRegularExpression("qt_plugin_query_metadata.*"), "qt_plugin_query_metadata*");
        lines.append("gives " + name);
    }
    const QRegularExpression hosts("(Change|CommonUtils|ExtendDialog|Startup)::|KORA_Statistics_");
    for (const QString &line :
         output(NM, {"-D", "-C", "--undefined-only", LoadedPlugin::fileName()}).filter(hosts))
        lines.append("needs " + line.trimmed().section(QLatin1Char(' '), 1));
    lines.removeDuplicates(); // a constructor has two symbols of one name
    lines.sort();
    return lines;
}

void tst_Interface::isTheOneThatIsDescribed()
{
    QFile description(QStringLiteral(DESCRIPTION));
    QVERIFY(description.open(QIODevice::ReadOnly));
    const QString described = QString::fromUtf8(description.readAll());
    const QString found =
        (places() + bases() + fields() + windowSlots() + symbols()).join(QLatin1Char('\n')) +
        QLatin1Char('\n');
    QFile copy(QCoreApplication::applicationDirPath() + QStringLiteral("/interface-found.txt"));
    QVERIFY(copy.open(QIODevice::WriteOnly));
    copy.write(found.toUtf8());
    copy.close();
    QVERIFY2(found == described, qPrintable("The binary interface is another one; compare " +
                                            copy.fileName() + " with " + description.fileName()));
}

QTEST_MAIN(tst_Interface)
#include "tst_interface.moc"
