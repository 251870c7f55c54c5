// SPDX-License-Identifier: MIT
#include "LoadedPlugin.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>

class tst_Exports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exportsItsEntryPointsAndTheVersionWordOnly();
    void keepsTheVersionWordInWritableData();
    void needsTheHostsLibrariesByNameOnly();
    void asksTheHostForTheContractsSymbolsOnly();

private:
    static QStringList output(const QString &program, const QStringList &arguments);
};

QStringList tst_Exports::output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        return {};
    return QString::fromLocal8Bit(process.readAllStandardOutput())
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void tst_Exports::exportsItsEntryPointsAndTheVersionWordOnly()
{
    QStringList names;
    for (const QString &line : output(NM, {"-D", "--defined-only", LoadedPlugin::fileName()}))
        names.append(line.section(QLatin1Char(' '), -1).section(QLatin1Char('@'), 0, 0));
    names.sort();
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const QString metadata = QStringLiteral("qt_plugin_query_metadata_v2");
#else
    const QString metadata = QStringLiteral("qt_plugin_query_metadata");
#endif
    QCOMPARE(names, (QStringList{"NET_INFO_RECORD_VERSION", "qt_plugin_instance", metadata,
                                 "qt_plugin_query_verification_data"}));
}

void tst_Exports::keepsTheVersionWordInWritableData()
{
    const QStringList words = output(NM, {"-D", "-S", "--defined-only", LoadedPlugin::fileName()})
                                  .filter(QStringLiteral("NET_INFO_RECORD_VERSION"));
    QCOMPARE(words.size(), 1);
    // address, size, kind (D: initialised data), name
#ifdef SANITIZED
    const QRegularExpression word("^[0-9a-f]+ [0-9a-f]+ D "); // with a margin that is watched
#else
    const QRegularExpression word("^[0-9a-f]+ 0+4 D ");
#endif
    QVERIFY2(words.first().contains(word), qPrintable(words.first()));
}

void tst_Exports::needsTheHostsLibrariesByNameOnly()
{
    const QStringList lines = output(READELF, {"-d", "-W", LoadedPlugin::fileName()});
    QCOMPARE(lines.filter(QStringLiteral("[libcore.so]")).size(), 1);
    QCOMPARE(lines.filter(QStringLiteral("[libsdk.so]")).size(), 1);
    QVERIFY(lines.filter(QStringLiteral("(RPATH)")).isEmpty());
    QVERIFY(lines.filter(QStringLiteral("(RUNPATH)")).isEmpty());
}

void tst_Exports::asksTheHostForTheContractsSymbolsOnly()
{
#ifdef SANITIZED
    QSKIP("the sanitizers ask for symbols of their own", "");
#endif
    // A host has these to give, and no more.
    const QRegularExpression hosts(
        QStringLiteral("\\b(Change|CommonUtils|ExtendDialog|Startup)::|\\bKORA_Statistics"));
    QStringList names;
    for (const QString &line :
         output(NM, {"-D", "-C", "--undefined-only", LoadedPlugin::fileName()}).filter(hosts))
        names.append(line.trimmed().mid(2).section(QLatin1Char('('), 0, 0));
    names.removeDuplicates();
    names.sort();
    QCOMPARE(names,
             (QStringList{"Change::tr", "CommonUtils::GetMainWindow", "CommonUtils::GetSettings",
                          "CommonUtils::MoveCentre", "CommonUtils::ShowMessage",
                          "ExtendDialog::AddMainWidget", "ExtendDialog::ExtendDialog",
                          "ExtendDialog::setWindowTitle", "KORA_Statistics_ConnRecord_RemoveRecord",
                          "KORA_Statistics_GetAllConnRecord", "KORA_Statistics_GetLastConnRecord",
                          "KORA_Statistics_ReleaseConnRecord", "Startup::GetPluginContainer"}));
}

QTEST_MAIN(tst_Exports)
#include "tst_exports.moc"
