// SPDX-License-Identifier: MIT
#include "ConnrecordRun.h"

#include <QDir>
#include <QFileInfo>
#include <QScopedPointer>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

/// Where the program's results go, and where they must not.
class ConnrecordOutputTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void exportsToAFile();
    void exportsToAFileWhoseNameIsNoText();
    void exportsThroughALink();
    void writesToWhatIsNoOrdinaryFile();
    void addsToWhatItsOwnDescriptorHasWritten();
    void replacesNoFileOfTheHistory_data();
    void replacesNoFileOfTheHistory();
    void replacesNoFileOfTheHistoryByAnotherName_data();
    void replacesNoFileOfTheHistoryByAnotherName();
    void replacesNoHistoryThatIsYetToBe();
    void addsNothingToTheHistoryItself();
    void tellsWhenTheResultCannotBeWritten_data();
    void tellsWhenTheResultCannotBeWritten();
    void leavesTheFileThatItCannotReplace();
    void leavesTheEarlierFileWhenTheDiskIsFull();
    void leavesAProtectedFile();
    void makesFilesThatAreTheUsersAlone();
    void keepsThePermissionsOfTheFileThatItReplaces();

private:
    ConnrecordRun run(const QStringList &arguments)
    {
        return connrecord(QStringList{"--store", m_store} + arguments);
    }
    /// A shell's command, in which $0 stands for the program with this store, $1
    /// for the folder.
    ConnrecordRun shell(QString command)
    {
        command.replace("$0", "\"$0\" --store \"$1/connections.db\"");
        return runProgram("sh", {"-c", command, connrecordProgram(), m_folder->path()});
    }
    QString path(const QString &name) const { return m_folder->filePath(name); }
    static mode_t permissions(const QString &path);

    QScopedPointer<QTemporaryDir> m_folder;
    QString m_store;
    const QByteArray m_csv = csvOf(3);
};

void ConnrecordOutputTest::init()
{
    m_folder.reset(new QTemporaryDir);
    m_store = path("connections.db");
    const ConnrecordRun import =
        connrecord({"--store", m_store, "import", "--format", "csv", "-"}, m_csv);
    QCOMPARE(import.exitCode, 0);
}

mode_t ConnrecordOutputTest::permissions(const QString &path)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        qFatal("%s is not there", qPrintable(path));
    return status.st_mode & 0777;
}

void ConnrecordOutputTest::exportsToAFile()
{
    const QString output = path("history.csv");
    writeFile(output, "what was there before, which is longer than what comes now: " +
                          QByteArray(1000, 'x'));
    const ConnrecordRun result = run({"export", "--output", output});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(readFile(output), m_csv);
    QCOMPARE(run({"export"}).output, m_csv);
    QCOMPARE(run({"export", "--output", "-"}).output, m_csv);
    QCOMPARE(run({"export", "--json"}).output, run({"list", "--json"}).output);
    const QStringList expected = {"connections.db", "history.csv"};
    QCOMPARE(
        QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        expected);
}

void ConnrecordOutputTest::exportsToAFileWhoseNameIsNoText()
{
    const ConnrecordRun result =
        shell("name=$(printf 'Z\\374rich.csv') && cd \"$1\" && $0 export --output \"$name\" && "
              "cat \"$name\" && rm \"$name\"");
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, m_csv);
}

void ConnrecordOutputTest::exportsThroughALink()
{
    QVERIFY(QDir(m_folder->path()).mkdir("exports"));
    QVERIFY(QFile::link("exports/history.csv", path("link.csv")));
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(run({"export", "--output", path("link.csv")}).exitCode, 0);
        QVERIFY(QFileInfo(path("link.csv")).isSymLink());
        QCOMPARE(readFile(path("exports/history.csv")), m_csv);
    }
}

void ConnrecordOutputTest::writesToWhatIsNoOrdinaryFile()
{
    const ConnrecordRun pipe =
        shell("mkfifo \"$1/pipe\" && { cat \"$1/pipe\" & } && "
              "$0 export --output \"$1/pipe\" && wait && test -p \"$1/pipe\"");
    QCOMPARE(pipe.exitCode, 0);
    QCOMPARE(pipe.output, m_csv);
    QCOMPARE(run({"export", "--output", "/dev/stdout"}).output, m_csv);
    QCOMPARE(run({"export", "--output", "/dev/null"}).exitCode, 0);
    const ConnrecordRun full = run({"export", "--output", "/dev/full"});
    QCOMPARE(full.exitCode, 5);
    QVERIFY2(full.error.startsWith("connrecord: \"/dev/full\" cannot be written"), full.error);
}

void ConnrecordOutputTest::addsToWhatItsOwnDescriptorHasWritten()
{
    for (const char *const name : {"/dev/stdout", "/dev/fd/1", "/proc/self/fd/1"}) {
        const ConnrecordRun result = shell("echo before > \"$1/log\" && $0 export --output " +
                                           QString(name) + " >> \"$1/log\"");
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(readFile(path("log")), "before\n" + m_csv);
    }
}

void ConnrecordOutputTest::replacesNoFileOfTheHistory_data()
{
    QTest::addColumn<QString>("suffix");

    for (const char *const suffix :
         {"", "-wal", "-shm", "-journal", ".recorder", "-unwritten", "-unwritten-2"})
        QTest::newRow(*suffix ? suffix : "the history itself") << suffix;
}

void ConnrecordOutputTest::replacesNoFileOfTheHistory()
{
    QFETCH(QString, suffix);
    const QString file = m_store + suffix;
    const QString link = path("link");
    QVERIFY(QFile::link(QFileInfo(file).fileName(), link));
    const auto isRefused = [this](const QString &output) {
        const ConnrecordRun result = run({"export", "--output", output});
        return result.exitCode == 5 && result.error.contains("belongs to the history");
    };
    // Whether it is there at the moment or not.
    if (!suffix.isEmpty()) {
        QVERIFY(isRefused(file));
        QVERIFY(isRefused(link));
        QVERIFY(!QFile::exists(file));
        writeFile(file, {});
    }
    const QByteArray before = readFile(file);
    const QString hardLink = path("hardlink");
    QCOMPARE(::link(QFile::encodeName(file).constData(), QFile::encodeName(hardLink).constData()),
             0);
    for (const QString &output :
         {file, link, hardLink, m_folder->path() + "/./" + QFileInfo(file).fileName()})
        QVERIFY2(isRefused(output), qPrintable(output));
    QCOMPARE(readFile(file), before);
}

void ConnrecordOutputTest::replacesNoFileOfTheHistoryByAnotherName_data()
{
    QTest::addColumn<QString>("command");

    QTest::newRow("relative") << "cd \"$1\" && $0 export --output connections.db";
    QTest::newRow("an open file") << "$0 export --output /proc/self/fd/7 7>>\"$1/connections.db\"";
    QTest::newRow("standard output") << "$0 export --output - >>\"$1/connections.db\"";
    QTest::newRow("beside the file that a link to the history leads to")
        << "mkdir \"$1/links\" && ln -s ../connections.db \"$1/links/history\" && "
           "\"$0\" --store \"$1/links/history\" export --output \"$1/connections.db-wal\"";
    QTest::newRow("beside a link to the history")
        << "mkdir \"$1/links\" && ln -s ../connections.db \"$1/links/history\" && "
           "\"$0\" --store \"$1/links/history\" export --output \"$1/links/history-unwritten\"";
}

void ConnrecordOutputTest::replacesNoFileOfTheHistoryByAnotherName()
{
    QFETCH(QString, command);
    const QByteArray before = readFile(m_store);
    const ConnrecordRun result =
        command.contains("--store")
            ? runProgram("sh", {"-c", command, connrecordProgram(), m_folder->path()})
            : shell(command);
    QCOMPARE(result.exitCode, 5);
    QVERIFY2(result.error.contains("belongs to the history"), result.error);
    QCOMPARE(readFile(m_store), before);
}

void ConnrecordOutputTest::replacesNoHistoryThatIsYetToBe()
{
    const QString store = path("new/connections.db");
    const ConnrecordRun result = connrecord({"--store", store, "export", "--output", store});
    QCOMPARE(result.exitCode, 5);
    QVERIFY2(result.error.contains("belongs to the history"), result.error);
    QVERIFY(!QFile::exists(store));
}

void ConnrecordOutputTest::addsNothingToTheHistoryItself()
{
    const QByteArray before = readFile(m_store);
    for (const char *const command : {"list", "list --json", "totals", "remove 1 --json"}) {
        const ConnrecordRun result = shell("$0 " + QString(command) + " >> \"$1/connections.db\"");
        QCOMPARE(result.exitCode, 5);
        QVERIFY2(result.error.startsWith("connrecord: standard output"), result.error);
        QCOMPARE(readFile(m_store), before);
    }
}

void ConnrecordOutputTest::tellsWhenTheResultCannotBeWritten_data()
{
    QTest::addColumn<QString>("command");

    for (const QString command :
         {"list", "list --json", "export", "export --json", "export --output -", "totals",
          "totals --json", "remove 1 --json", "import --format csv \"$1/input.csv\"",
          "import --format csv --json \"$1/input.csv\"",
          "add --profile a --start 2024-05-31T18:30:00Z --end 2024-05-31T18:30:00Z --up 1 --down 2",
          "--help", "list --help", "--version"}) {
        QTest::addRow("%s to a full disk", qPrintable(command)) << command + " >/dev/full";
        QTest::addRow("%s, closed", qPrintable(command)) << command + " >&-";
    }
}

void ConnrecordOutputTest::tellsWhenTheResultCannotBeWritten()
{
    QFETCH(QString, command);
    writeFile(path("input.csv"), m_csv);
    const ConnrecordRun result = shell("$0 " + command);
    QCOMPARE(result.exitCode, 5);
    QVERIFY2(result.error.startsWith("connrecord: standard output cannot be written"),
             result.error);
}

void ConnrecordOutputTest::leavesTheFileThatItCannotReplace()
{
    const ConnrecordRun toFolder = run({"export", "--output", m_folder->path()});
    QCOMPARE(toFolder.exitCode, 5);
    QVERIFY2(toFolder.error.contains(m_folder->path().toUtf8()), toFolder.error);
    QCOMPARE(run({"export", "--output", path("missing/history.csv")}).exitCode, 5);

    // A store that cannot be read leaves the earlier export as it was.
    const QString output = path("history.csv");
    writeFile(output, "earlier");
    writeFile(path("broken.db"), "no store");
    QCOMPARE(connrecord({"--store", path("broken.db"), "export", "--output", output}).exitCode, 3);
    QCOMPARE(readFile(output), QByteArray("earlier"));
}

void ConnrecordOutputTest::leavesTheEarlierFileWhenTheDiskIsFull()
{
    QCOMPARE(
        connrecord({"--store", m_store, "import", "--format", "csv", "-"}, csvOf(5000)).exitCode,
        0);
    writeFile(path("history.csv"), "earlier");
    const ConnrecordRun result = shell("trap '' XFSZ && ulimit -f 256 && "
                                       "$0 export --output \"$1/history.csv\"");
    QCOMPARE(result.exitCode, 5);
    QCOMPARE(readFile(path("history.csv")), QByteArray("earlier"));
    QVERIFY(QDir(m_folder->path()).entryList({".*"}, QDir::Files | QDir::Hidden).isEmpty());
}

void ConnrecordOutputTest::leavesAProtectedFile()
{
    writeFile(path("history.csv"), "earlier");
    // Nothing is protected from the superuser.
    const QString asAnother =
        geteuid() == 0 ? "chown -R 65534 \"$1\" && setpriv --reuid 65534 --clear-groups " : "";
    const ConnrecordRun result = shell("chmod 400 \"$1/history.csv\" && " + asAnother +
                                       "$0 export --output \"$1/history.csv\"");
    QCOMPARE(result.exitCode, 5);
    QVERIFY2(result.error.contains("history.csv\" cannot be written"), result.error);
    QCOMPARE(readFile(path("history.csv")), QByteArray("earlier"));
}

void ConnrecordOutputTest::makesFilesThatAreTheUsersAlone()
{
    for (const char *const mask : {"000", "022", "077"}) {
        QFile::remove(path("history.csv"));
        QCOMPARE(
            shell("umask " + QString(mask) + " && $0 export --output \"$1/history.csv\"").exitCode,
            0);
        QCOMPARE(permissions(path("history.csv")), mode_t(0600));
    }
}

void ConnrecordOutputTest::keepsThePermissionsOfTheFileThatItReplaces()
{
    const QString output = path("history.csv");
    writeFile(output, "earlier");
    QCOMPARE(chmod(QFile::encodeName(output).constData(), 0664), 0);
    QCOMPARE(run({"export", "--output", output}).exitCode, 0);
    QCOMPARE(readFile(output), m_csv);
    QCOMPARE(permissions(output), mode_t(0664));
}

QTEST_GUILESS_MAIN(ConnrecordOutputTest)

#include "tst_connrecordoutput.moc"
