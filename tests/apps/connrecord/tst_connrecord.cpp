// SPDX-License-Identifier: MIT
#include "ConnrecordRun.h"
#include "history/Store.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace history;

/// The program's commands on a real store, import aside.
class ConnrecordTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void listsAStoreThatDoesNotExistAsEmpty_data();
    void listsAStoreThatDoesNotExistAsEmpty();
    void usesTheStoreOfTheEnvironment();
    void addsAndListsAConnection();
    void addsAndListsTimesAfter2038();
    void takesTheEndMinusTheStartAsTimeConnected();
    void keepsExactByteCounts();
    void listsInTheOrderOfTheStore();
    void refusesWhatCannotBeAdded_data();
    void refusesWhatCannotBeAdded();
    void removesAllOrNone();
    void removesFromNoStoreWithoutMakingOne();
    void leavesAFileAloneThatIsNoStore_data();
    void leavesAFileAloneThatIsNoStore();
    void tellsWrongUsage_data();
    void tellsWrongUsage();
    void tellsWrongUsageWhoseBytesAreNoText();
    void takesAnEmptyValue();
    void takesAValueThatLooksLikeAnOption();
    void keepsATerminalFromObeyingNames();
    void tellsThatThereIsNotEnoughMemory_data();
    void tellsThatThereIsNotEnoughMemory();
    void helpsWithEveryCommand_data();
    void helpsWithEveryCommand();
    void tellsItsVersion();

private:
    ConnrecordRun run(const QStringList &arguments)
    {
        return connrecord(QStringList{"--store", m_store} + arguments);
    }
    QStringList addition(const QStringList &changes = {}) const;
    std::vector<Connection> stored() const
    {
        return Store::openForReading(m_store.toStdString()).value().list().value();
    }

    QTemporaryDir m_folder;
    QString m_store;
};

void ConnrecordTest::init()
{
    static int number = 0;
    const QDir folder(m_folder.path());
    const QString name = QString::number(++number);
    QVERIFY(folder.mkdir(name));
    m_store = folder.filePath(name + "/connections.db");
}

/// The arguments of a good `add`, some of them changed: name and value in turn,
/// a null value for an option that is left out.
QStringList ConnrecordTest::addition(const QStringList &changes) const
{
    QMap<QString, QString> options = {{"--profile", "internet.example"},
                                      {"--start", "2024-05-31T18:30:00Z"},
                                      {"--end", "2024-05-31T19:30:00Z"},
                                      {"--up", "31981"},
                                      {"--down", "20722"}};
    for (int i = 0; i + 1 < changes.size(); i += 2)
        options[changes[i]] = changes[i + 1];
    QStringList arguments = {"add"};
    for (auto option = options.cbegin(); option != options.cend(); ++option) {
        if (!option.value().isNull())
            arguments << option.key() << option.value();
    }
    return arguments;
}

void ConnrecordTest::listsAStoreThatDoesNotExistAsEmpty_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("output");

    QTest::newRow("list") << QStringList{"list"}
                          << QByteArray("KEY  PROFILE  START  END  CONNECTED  UPLOADED  "
                                        "DOWNLOADED  ENDING  INTERFACE  OPERATOR  SIM  ROAMING\n");
    QTest::newRow("list as JSON") << QStringList{"list", "--json"} << QByteArray("[]\n");
    QTest::newRow("export") << QStringList{"export"} << csvOf(0);
    QTest::newRow("export as JSON") << QStringList{"export", "--json"} << QByteArray("[]\n");
}

void ConnrecordTest::listsAStoreThatDoesNotExistAsEmpty()
{
    QFETCH(QStringList, arguments);
    const ConnrecordRun result = run(arguments);
    QCOMPARE(result.exitCode, 0);
    QTEST(result.output, "output");
    QCOMPARE(result.error, QByteArray());
    QVERIFY(QDir(QFileInfo(m_store).path()).isEmpty());
}

void ConnrecordTest::usesTheStoreOfTheEnvironment()
{
    qputenv("NETINFO_STORE", m_store.toUtf8());
    const ConnrecordRun result = connrecord(addition());
    qunsetenv("NETINFO_STORE");
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(stored().size(), std::size_t(1));
}

void ConnrecordTest::addsAndListsTimesAfter2038()
{
    const ConnrecordRun added = run(addition(
        {"--start", "2038-01-19T03:14:08Z", "--end", "2106-02-07T06:28:15Z", "--connected", "60"}));
    QCOMPARE(added.output, QByteArray("1\n"));
    const QJsonObject listed = run({"list", "--json"}).json().array().at(0).toObject();
    QCOMPARE(listed["start"].toString(), QString("2038-01-19T03:14:08Z"));
    QCOMPARE(listed["end"].toString(), QString("2106-02-07T06:28:15Z"));
    QVERIFY(run({"list"}).output.contains("2038-01-19 04:14:08"));
}

void ConnrecordTest::addsAndListsAConnection()
{
    const ConnrecordRun added =
        run(addition({"--connected", "3590", "--interface", "ppp0"}) + QStringList{"--json"});
    QCOMPARE(added.exitCode, 0);
    QCOMPARE(added.json().object(), (QJsonObject{{"key", 1}}));
    QCOMPARE(run(addition()).output, QByteArray("2\n"));

    const QJsonObject first = run({"list", "--json"}).json().array().at(0).toObject();
    QCOMPARE(first, (QJsonObject{{"key", 1},
                                 {"profile", "internet.example"},
                                 {"start", "2024-05-31T18:30:00Z"},
                                 {"end", "2024-05-31T19:30:00Z"},
                                 {"connected_seconds", 3590},
                                 {"uploaded_bytes", 31981},
                                 {"downloaded_bytes", 20722},
                                 {"ending", "normal"},
                                 {"interface", "ppp0"},
                                 {"operator", ""},
                                 {"operator_code", ""},
                                 {"sim", ""},
                                 {"roaming", ""},
                                 {"technology", ""}}));
    const QByteArray row = run({"list"}).output.split('\n').at(1);
    QCOMPARE(row, QByteArray("  1  internet.example  2024-05-31 20:30:00  2024-05-31 21:30:00   "
                             "00:59:50  31.23 KB    20.24 KB  normal  ppp0"));
}

void ConnrecordTest::takesTheEndMinusTheStartAsTimeConnected()
{
    QCOMPARE(run(addition({"--end", "2024-05-31T21:30:01"})).exitCode, 0);
    QCOMPARE(stored().at(0).connectedSeconds, std::int64_t(3601));
}

void ConnrecordTest::keepsExactByteCounts()
{
    QCOMPARE(run(addition({"--up", "9223372036854775807", "--down", "9007199254740993"})).exitCode,
             0);
    const QByteArray json = run({"list", "--json"}).output;
    QVERIFY2(json.contains("\"uploaded_bytes\": 9223372036854775807"), json);
    QVERIFY2(json.contains("\"downloaded_bytes\": 9007199254740993"), json);
}

void ConnrecordTest::listsInTheOrderOfTheStore()
{
    run(addition({"--profile", "later", "--start", "2024-05-31T18:30:01Z"}));
    run(addition({"--profile", "", "--start", "2024-05-31T18:30:00Z"}));
    run(addition({"--profile", "Zürich, 🛰\n", "--start", "2024-05-31T18:30:00Z"}));
    QStringList profiles;
    for (const auto connection : run({"list", "--json"}).json().array())
        profiles << connection.toObject().value("profile").toString();
    QCOMPARE(profiles, (QStringList{"", "Zürich, 🛰\n", "later"}));
}

void ConnrecordTest::refusesWhatCannotBeAdded_data()
{
    QTest::addColumn<QStringList>("changes");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QByteArray>("reason");

    const auto row = [](const char *name, const char *option, const QString &value, int exitCode,
                        const char *reason) {
        QTest::newRow(name) << QStringList{option, value} << exitCode << QByteArray(reason);
    };
    row("an end before the start", "--end", "2024-05-31T18:29:59Z", 1, "before the start");
    row("a time before 1970", "--start", "1969-12-31T23:59:59Z", 1, "--start");
    row("a time after 32 bits", "--end", "2106-02-07T06:28:16Z", 1, "--end");
    row("negative bytes", "--up", "-5", 1, "--up");
    row("more bytes than 63 bits", "--down", "9223372036854775808", 1, "--down");
    row("too long a time connected", "--connected", "2147483648", 1, "--connected");
    row("too long an interface", "--interface", QString(32, 'i'), 1, "interface");
    row("no time", "--start", "yesterday", 2, "--start");
    row("no number", "--up", "many", 2, "--up");
    row("no profile", "--profile", QString(), 2, "--profile");
    row("no end", "--end", QString(), 2, "--end");
}

void ConnrecordTest::refusesWhatCannotBeAdded()
{
    QFETCH(QStringList, changes);
    QFETCH(QByteArray, reason);
    const ConnrecordRun result = run(addition(changes));
    QTEST(result.exitCode, "exitCode");
    QCOMPARE(result.output, QByteArray());
    QVERIFY2(result.error.startsWith("connrecord: "), result.error);
    QVERIFY2(result.error.contains(reason), result.error);
    QVERIFY(stored().empty());
}

void ConnrecordTest::removesAllOrNone()
{
    for (int i = 0; i < 3; ++i)
        run(addition());
    const ConnrecordRun refused = run({"remove", "1", "77", "2"});
    QCOMPARE(refused.exitCode, 1);
    QVERIFY2(refused.error.contains("77"), refused.error);
    QCOMPARE(stored().size(), std::size_t(3));
    QCOMPARE(run({"remove", "first"}).exitCode, 2);

    QCOMPARE(run({"remove", "1", "1"}).exitCode, 0);
    const ConnrecordRun removed = run({"remove", "--json", "3", "2"});
    QCOMPARE(removed.exitCode, 0);
    QCOMPARE(removed.json().object(), (QJsonObject{{"removed", QJsonArray{3, 2}}}));
    QVERIFY(stored().empty());
}

void ConnrecordTest::removesFromNoStoreWithoutMakingOne()
{
    QCOMPARE(run({"remove", "1"}).exitCode, 1);
    QVERIFY(!QFile::exists(m_store));
}

void ConnrecordTest::leavesAFileAloneThatIsNoStore_data()
{
    QTest::addColumn<QStringList>("arguments");

    QTest::newRow("list") << QStringList{"list"};
    QTest::newRow("add") << addition();
    QTest::newRow("remove") << QStringList{"remove", "1"};
    QTest::newRow("export") << QStringList{"export"};
    QTest::newRow("import") << QStringList{"import", "--format", "csv", "-"};
}

void ConnrecordTest::leavesAFileAloneThatIsNoStore()
{
    QFETCH(QStringList, arguments);
    writeFile(m_store, "Dear diary, this is no database.\n");
    const ConnrecordRun result = connrecord(QStringList{"--store", m_store} + arguments, csvOf(2));
    QCOMPARE(result.exitCode, 3);
    QVERIFY2(result.error.contains(m_store.toUtf8()), result.error);
    QCOMPARE(readFile(m_store), QByteArray("Dear diary, this is no database.\n"));
}

void ConnrecordTest::tellsWrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("what");

    const auto row = [](const char *name, const QStringList &arguments, const char *what) {
        QTest::newRow(name) << arguments << QByteArray(what);
    };
    row("no command", {}, "command");
    row("an unknown command", {"delete"}, "no command \"delete\"");
    row("an unknown command with options", {"delete", "--json"}, "no command \"delete\"");
    row("an unknown command that a terminal would obey", {"\x1b[2J"}, "no command \"\\u001b[2J\"");
    row("an unknown option", {"list", "--all"}, "--all");
    row("an unknown option without a command", {"--all"}, "no option \"--all\"");
    row("an unknown option that a terminal would obey", {"list", "--\u202e"}, "--\\u202e");
    row("an argument too many", {"list", "all"}, "all");
    row("two commands", {"list", "export"}, "export");
    row("no key to remove", {"remove"}, "KEY");
    row("no format to import", {"import", "-"}, "--format");
    row("an unknown format", {"import", "--format", "xml", "-"}, "xml");
    row("no file to import", {"import", "--format", "csv"}, "FILE");
    row("an option without its value", {"list", "--store"}, "--store");
    row("a file without a name", {"list", "--store="}, "--store: the name of the file is empty");
    row("an export without a name", {"export", "--output", ""}, "--output: the name");
    row("an import without a name", {"import", "--format", "csv", ""}, "FILE: the name");
    row("an empty number", addition({"--up", ""}), "For --up, \"\"");
    row("a value for a flag", {"list", "--json=no"}, "json");
}

void ConnrecordTest::tellsWrongUsage()
{
    QFETCH(QStringList, arguments);
    const ConnrecordRun result = run(arguments);
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.output, QByteArray());
    QVERIFY2(result.error.startsWith("connrecord: "), result.error);
    QFETCH(QByteArray, what);
    QVERIFY2(result.error.contains(what), result.error);
}

void ConnrecordTest::tellsWrongUsageWhoseBytesAreNoText()
{
    const ConnrecordRun result =
        runProgram("sh", {"-c", "\"$0\" \"$(printf 'l\\377st')\"", connrecordProgram()});
    QCOMPARE(result.exitCode, 2);
    QVERIFY2(result.error.contains("no command \"l\xEF\xBF\xBDst\""), result.error);
}

void ConnrecordTest::takesAnEmptyValue()
{
    const ConnrecordRun result =
        run({"add", "--profile=", "--start=2024-05-31T18:30:00Z", "--end=2024-05-31T19:30:00Z",
             "--interface=", "--up=0", "--down", "20722"});
    QVERIFY2(result.exitCode == 0, result.error);
    QCOMPARE(stored().at(0).profile, std::string());
    QCOMPARE(stored().at(0).interfaceName, std::string());
    QCOMPARE(stored().at(0).downloadedBytes, std::int64_t(20722));
}

void ConnrecordTest::takesAValueThatLooksLikeAnOption()
{
    for (const char *const profile : {"--up=", "--json", "-h", "a=b", "--"}) {
        const ConnrecordRun result = run(addition({"--profile", profile}));
        QVERIFY2(result.exitCode == 0, result.error);
        QCOMPARE(stored().back().profile, std::string(profile));
    }
}

void ConnrecordTest::keepsATerminalFromObeyingNames()
{
    const QByteArray hostile = "a\x1b[2J\xC2\x9B\xE2\x80\xAE\xF3\xA0\x80\x81\r\nb";
    const QByteArray shown = "a\\u001b[2J\\u009b\\u202e\\udb40\\udc01\\r\\nb";
    QCOMPARE(run(addition({"--profile", QString::fromUtf8(hostile)})).exitCode, 0);
    for (const char *const command :
         {"list", "list --json", "export", "export --json", "export --output /dev/tty",
          "export --output /dev/stdout --json", "totals --by profile",
          "totals --by profile --json"}) {
        const ConnrecordRun result =
            onTerminal(QString("'%1' --store '%2' %3").arg(connrecordProgram(), m_store, command));
        QCOMPARE(result.exitCode, 0);
        QVERIFY2(result.output.contains(shown), command + result.output);
        QVERIFY2(!result.output.contains('\x1b') && !result.output.contains("\xE2\x80\xAE"),
                 command);
    }
    // A file or pipe gets the bytes themselves.
    QVERIFY(run({"export"}).output.contains('"' + hostile + '"'));
    QVERIFY(run({"list", "--json"}).output.contains("\xE2\x80\xAE\xF3\xA0\x80\x81"));
    const QString json = QString::fromUtf8(
        onTerminal(QString("'%1' --store '%2' list --json").arg(connrecordProgram(), m_store))
            .output);
    QCOMPARE(QJsonDocument::fromJson(json.toUtf8()), run({"list", "--json"}).json());
}

void ConnrecordTest::tellsThatThereIsNotEnoughMemory_data()
{
    QTest::addColumn<QString>("command");

    for (const char *const command :
         {"remove --from 2000-01-01 --dry-run", "import --format csv \"$1/history.csv\""})
        QTest::newRow(command) << command;
}

void ConnrecordTest::tellsThatThereIsNotEnoughMemory()
{
    QFETCH(QString, command);
#ifdef SANITIZED
    QSKIP("sanitizers take more memory than a limit allows", "");
#endif
    const QString folder = QFileInfo(m_store).path();
    writeFile(folder + "/history.csv", csvOf(20000));
    QCOMPARE(run({"import", "--format", "csv", folder + "/history.csv"}).exitCode, 0);
    const auto limited = [&folder](int kilobytes, const QString &arguments) {
        return runProgram("sh", {"-c",
                                 QString("ulimit -v %1 && \"$0\" --store \"$1/connections.db\" %2")
                                     .arg(kilobytes)
                                     .arg(arguments),
                                 connrecordProgram(), folder});
    };
    constexpr int step = 1024;
    int least = step;
    while (limited(least, "--version").exitCode != 0)
        least += step;
    int failures = 0;
    ConnrecordRun result;
    for (int kilobytes = least; result.exitCode != 0; kilobytes += step) {
        result = limited(kilobytes, command);
        QVERIFY2(result.exitCode == 0 || result.exitCode == 3, result.error);
        QCOMPARE(result.error.count('\n'), result.exitCode == 0 ? 0 : 1);
        failures += result.exitCode == 0 ? 0 : 1;
    }
    QVERIFY(failures > 0);
}

void ConnrecordTest::helpsWithEveryCommand_data()
{
    QTest::addColumn<QStringList>("arguments");

    QTest::newRow("the program") << QStringList{"--help"};
    for (const char *const command : {"list", "add", "remove", "export", "import", "totals"})
        QTest::newRow(command) << QStringList{command, "--help"};
    QTest::newRow("status") << QStringList{"status", "--help"};
    QTest::newRow("plan") << QStringList{"plan", "--help"};
    QTest::newRow("plan set") << QStringList{"plan", "set", "--help"};
}

void ConnrecordTest::helpsWithEveryCommand()
{
    QFETCH(QStringList, arguments);
    const ConnrecordRun result = run(arguments);
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.output.contains("Exit codes:"), result.output);
    QVERIFY2(result.output.contains(arguments.first().toUtf8()), result.output);
    QCOMPARE(result.error, QByteArray());
}

void ConnrecordTest::tellsItsVersion()
{
    const ConnrecordRun result = run({"--version"});
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.output.startsWith("connrecord "), result.output);
}

QTEST_GUILESS_MAIN(ConnrecordTest)

#include "tst_connrecord.moc"
