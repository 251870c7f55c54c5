// SPDX-License-Identifier: MIT
#include "FileTransfer.h"
#include "MenuEntry.h"
#include "apps/refdialer/FileMenu.h"
#include "formats/Formats.h"
#include "tests/formats/Documents.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Transaction.h>

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

/// Files that come into the history by the File menu.
class FileImportTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_user.reset(); }

    void takesEveryFormat_data();
    void takesEveryFormat();
    void addsOnlyWhatIsMissing();
    void joinsRotatedLogs();
    void showsWhatCouldNotBeUsed();
    void tellsWhyAFileCannotBeImported_data();
    void tellsWhyAFileCannotBeImported();
    void tellsThatAFileMayNotBeRead();
    void tellsThatTheDiskIsFull();

    void opensByItsKey();
    void leavesTheWindowUsableMeanwhile();
    void cancelsReadingWithEscape();
    void cancelsStoringWithEscape();
    void asksWhenTheWindowCloses_data();
    void asksWhenTheWindowCloses();
    void endsWithTheWindow();

private:
    /// So long that nobody sees its end.
    QString endlessFile() const;
    void importAll(const QStringList &files, const QString &kind = {}) const;

    std::unique_ptr<FileTransfer> m_user;
};

namespace
{

const QByteArray firstLog = "2024-05-31T10:00:00Z gw pppd[7]: Connect: ppp0 <--> /dev/ttyUSB0\n"
                            "2024-05-31T10:00:01Z gw pppd[7]: local  IP address 192.0.2.1\n";
const QByteArray secondLog = "2024-05-31T10:10:01Z gw pppd[7]: Connect time 10.0 minutes.\n"
                             "2024-05-31T10:10:01Z gw pppd[7]: Sent 10 bytes, received 20 bytes.\n";

std::vector<history::Connection> twoConnections()
{
    return {connection("first", 0), connection("second", 1)};
}

} // namespace

void FileImportTest::init()
{
    m_user = std::make_unique<FileTransfer>();
    QVERIFY(m_user->history.store({connection("there", 9)}));
    QVERIFY(m_user->history.open());
}

QString FileImportTest::endlessFile() const
{
    const QString path = m_user->file("endless.log", {});
    if (truncate(QFile::encodeName(path).constData(), std::int64_t(1) << 40) != 0)
        qFatal("%s cannot be made long", qPrintable(path));
    return path;
}

void FileImportTest::importAll(const QStringList &files, const QString &kind) const
{
    m_user->choose("Import…", files, kind);
    QTRY_VERIFY(m_user->isDone());
}

void FileImportTest::takesEveryFormat_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QStringList>("profiles");

    const QStringList both = {"there", "second", "first"};
    const QByteArray csv = formats::toCsv(twoConnections());
    const QByteArray json = formats::toJsonText(twoConnections());
    QTest::newRow("a table") << "history.csv" << csv << QString() << both;
    QTest::newRow("a table by another name") << "history" << csv << QString() << both;
    QTest::newRow("a table that is said to be one") << "history.csv" << csv << "CSV" << both;
    QTest::newRow("a table with a byte order mark") << "history.txt"
                                                    << "\xEF\xBB\xBF" + csv << QString() << both;
    QTest::newRow("JSON") << "history.json" << json << QString() << both;
    QTest::newRow("JSON behind blanks") << "history.csv"
                                        << " \n" + json << QString() << both;
    QTest::newRow("JSON that is said to be it") << "history.json" << json << "JSON (" << both;
    QTest::newRow("a log") << "syslog.1" << firstLog + secondLog << QString()
                           << QStringList{"there", "ppp0"};
    QTest::newRow("a log that is said to be one")
        << "syslog" << firstLog + secondLog << "System log" << QStringList{"there", "ppp0"};
}

void FileImportTest::takesEveryFormat()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, contents);
    QFETCH(QString, kind);
    QFETCH(QStringList, profiles);
    importAll({m_user->file(name, contents)}, kind);
    QCOMPARE(m_user->shownText(),
             QString("Connections added: %1 | In the history already: 0").arg(profiles.size() - 1));
    QCOMPARE(m_user->shownDetails(), QString());
    QTRY_COMPARE(m_user->history.shownProfiles(), profiles);
}

void FileImportTest::addsOnlyWhatIsMissing()
{
    const QString file = m_user->file("history.csv", formats::toCsv(twoConnections()));
    importAll({file});
    importAll({file});
    QCOMPARE(m_user->shownText(), QString("Connections added: 0 | In the history already: 2"));
    QCOMPARE(m_user->history.storedProfiles(), QStringList({"first", "second", "there"}));
}

void FileImportTest::joinsRotatedLogs()
{
    importAll({m_user->file("syslog", secondLog), m_user->file("syslog.1", firstLog)});
    QCOMPARE(m_user->shownText(), QString("Connections added: 1 | In the history already: 0"));
    const auto stored = history::Store::openForReading(m_user->history.storePath()).value().list();
    QCOMPARE(stored.value().front().interfaceName, std::string("ppp0"));
    QCOMPARE(stored.value().front().connectedSeconds, std::int64_t(600));
}

void FileImportTest::showsWhatCouldNotBeUsed()
{
    const QByteArray cut = QByteArray(secondLog).replace("pppd[7]", "pppd[8]").replace("Sent", "");
    const QString file = m_user->file("syslog", firstLog + secondLog + cut);
    importAll({file});
    QCOMPARE(m_user->shownText(), QString("Connections added: 1 | In the history already: 0"));
    const QString details = m_user->shownDetails();
    QVERIFY2(details.startsWith("Not used, ") && details.contains(file) &&
                 details.contains("pppd[8]"),
             qPrintable(details));
}

void FileImportTest::tellsWhyAFileCannotBeImported_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("reason");

    const QString recognised = "It was taken to be: ";
    QTest::newRow("an empty file") << QStringList{"empty"} << QString() << recognised;
    QTest::newRow("an empty table") << QStringList{"empty"} << "CSV"
                                    << "the file is empty";
    QTest::newRow("a broken line")
        << QStringList{"broken.csv"} << QString() << "line 4, column start: ";
    QTest::newRow("a broken archive")
        << QStringList{"broken.gz"} << QString() << "cannot be read to its end";
    QTest::newRow("another format than was said") << QStringList{"history.csv"} << "JSON"
                                                  << "Nothing was imported.";
    QTest::newRow("two tables") << QStringList{"history.csv", "history.txt"} << QString()
                                << "Choose one file at a time.";
    QTest::newRow("a table among logs")
        << QStringList{"syslog", "history.csv"} << QString() << "Choose one file at a time.";
    QTest::newRow("a pipe") << QStringList{"pipe"} << QString() << "Choose a file.";
    QTest::newRow("the history") << QStringList{"history"} << QString() << "belongs to the history";
    QTest::newRow("what is kept beside the history")
        << QStringList{"history-wal"} << QString() << "belongs to the history";
}

void FileImportTest::tellsWhyAFileCannotBeImported()
{
    QFETCH(QStringList, files);
    QFETCH(QString, kind);
    QFETCH(QString, reason);
    const QByteArray csv = formats::toCsv(twoConnections());
    m_user->file("empty", {});
    m_user->file("broken.csv", csv + "\n" + csv);
    m_user->file("broken.gz", "\x1f\x8b and nothing that is compressed");
    m_user->file("history.csv", csv);
    m_user->file("history.txt", csv);
    m_user->file("syslog", firstLog);
    QCOMPARE(mkfifo(QFile::encodeName(m_user->path("pipe")).constData(), 0600), 0);
    const QString store = QString::fromStdString(m_user->history.storePath());
    QVERIFY(QFile::link(store, m_user->path("history")));
    QVERIFY(QFile::link(store + "-wal", m_user->path("history-wal")));

    QStringList paths;
    for (const QString &file : files)
        paths.append(m_user->path(file));
    const QByteArray before = m_user->contents();
    importAll(paths, kind);
    QCOMPARE(m_user->shownText(), QString("Nothing was imported."));
    QVERIFY2(m_user->shownDetails().contains(reason), qPrintable(m_user->shownDetails()));
    QCOMPARE(m_user->contents(), before);
}

void FileImportTest::tellsThatAFileMayNotBeRead()
{
    const QString file = m_user->file("history.csv", formats::toCsv(twoConnections()));
    QCOMPARE(chmod(QFile::encodeName(file).constData(), 0), 0);
    // The superuser may read everything.
    const bool isSuperuser = geteuid() == 0;
    QVERIFY(!isSuperuser || seteuid(65534) == 0);
    m_user->choose("Import…", {file});
    QTRY_VERIFY(m_user->isDone());
    QVERIFY(!isSuperuser || seteuid(0) == 0);
    QCOMPARE(m_user->shownText(), QString("Nothing was imported."));
    QVERIFY2(m_user->shownDetails().contains("Check its name and its permissions."),
             qPrintable(m_user->shownDetails()));
}

void FileImportTest::tellsThatTheDiskIsFull()
{
    std::vector<history::Connection> many;
    for (int i = 0; i < 5000; ++i)
        many.push_back(connection("internet", i));
    const QString file = m_user->file("history.csv", formats::toCsv(many));
    const QByteArray before = m_user->contents();
    {
        const FullDisk disk(131072);
        importAll({file});
    }
    QCOMPARE(m_user->shownText(), QString("Nothing was imported."));
    const QString store = QString::fromStdString(m_user->history.storePath());
    QVERIFY2(m_user->shownDetails().contains(store), qPrintable(m_user->shownDetails()));
    QCOMPARE(m_user->contents(), before);
}

void FileImportTest::opensByItsKey()
{
    m_user->history.pressKey(Qt::Key_O, Qt::ControlModifier);
    auto *const chooser = m_user->history.window().findChild<QFileDialog *>();
    QVERIFY(chooser && chooser->isVisible());
    QCOMPARE(chooser->nameFilters().size(), int(formats::importFormats.size()) + 1);
    QTest::keyClick(chooser, Qt::Key_Escape);
    QTRY_VERIFY(!m_user->history.window().findChild<QFileDialog *>());
    QVERIFY(!m_user->dialog());
}

void FileImportTest::leavesTheWindowUsableMeanwhile()
{
    m_user->choose("Import…", {endlessFile()});
    QTRY_VERIFY2(m_user->shownText().startsWith("Reading \"endless.log\": "),
                 qPrintable(m_user->shownText()));
    QTRY_COMPARE(m_user->dialog()->findChild<QProgressBar *>()->maximum(), 1000);
    QVERIFY(!QApplication::activeModalWidget());
    // A connection that ends is stored and shown.
    QVERIFY(m_user->history.store({connection("meanwhile", 10)}));
    QTRY_COMPARE(m_user->history.shownProfiles(), QStringList({"meanwhile", "there"}));
    // Another import has to wait.
    m_user->history.window().findChild<refdialer::FileMenu *>()->importFiles();
    QVERIFY(!m_user->history.window().findChild<QFileDialog *>());
    QVERIFY(!m_user->isDone());
}

void FileImportTest::cancelsReadingWithEscape()
{
    const QByteArray before = m_user->contents();
    m_user->choose("Import…", {endlessFile()});
    m_user->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_user->dialog());
    QCOMPARE(m_user->contents(), before);
}

void FileImportTest::cancelsStoringWithEscape()
{
    const QByteArray before = m_user->contents();
    SQLite::Database other(m_user->history.storePath(), SQLite::OPEN_READWRITE);
    auto lock =
        std::make_unique<SQLite::Transaction>(other, SQLite::TransactionBehavior::IMMEDIATE);
    m_user->choose("Import…", {m_user->file("history.csv", formats::toCsv(twoConnections()))});
    QTRY_COMPARE(m_user->shownText(), QString("Adding connections to the history: 0 of 2"));
    m_user->press(Qt::Key_Escape);
    QCOMPARE(m_user->shownText(), QString("Cancelling"));
    lock.reset();
    QTRY_VERIFY(!m_user->dialog());
    QCOMPARE(m_user->contents(), before);
    // The next one is not hindered by it.
    importAll({m_user->path("history.csv")});
    QCOMPARE(m_user->shownText(), QString("Connections added: 2 | In the history already: 0"));
}

void FileImportTest::asksWhenTheWindowCloses_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("closes");

    QTest::newRow("wait") << "&Wait" << false;
    QTest::newRow("close") << "&Close the window" << true;
}

void FileImportTest::asksWhenTheWindowCloses()
{
    QFETCH(QString, answer);
    QFETCH(bool, closes);
    const QByteArray before = m_user->contents();
    m_user->choose("Import…", {endlessFile()});
    m_user->answer(answer);
    QCOMPARE(m_user->history.window().close(), closes);
    QCOMPARE(m_user->question(), QString("Connections are being imported or exported."));
    QCOMPARE(m_user->dialog() == nullptr, closes);
    QCOMPARE(m_user->contents(), before);
}

/// A signal or the end of the session asks nobody.
void FileImportTest::endsWithTheWindow()
{
    const QByteArray before = m_user->contents();
    m_user->choose("Import…", {endlessFile()});
    m_user->history.close();
    QCOMPARE(m_user->contents(), before);
}

QTEST_MAIN(FileImportTest)
#include "tst_fileimport.moc"
