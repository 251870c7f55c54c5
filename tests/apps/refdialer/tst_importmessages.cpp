// SPDX-License-Identifier: MIT
#include "apps/refdialer/ExportWork.h"
#include "apps/refdialer/ImportWork.h"
#include "apps/refdialer/Transfer.h"
#include "apps/refdialer/TransferDialog.h"
#include "formats/CsvFormat.h"
#include "refhost/libcore/Host.h"

#include <QDir>
#include <QFile>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <optional>
#include <utility>

using refdialer::TransferResult;

/// What the window says of files, and of lines that it cannot use.
class ImportMessagesTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { refhost::setLanguage(QStringLiteral("en")); }

    void speakTheLanguageOfTheProgram_data();
    void speakTheLanguageOfTheProgram();
    void leaveNamesOfFilesAsTheyAre();
    void writeOutLineFeedsInNames_data();
    void writeOutLineFeedsInNames();
    void writeOutLineFeedsInTheNameOfTheHistory();
    void writeOutLineFeedsInNamesOfExports();
    void writeOutWhatTheParserQuotes_data();
    void writeOutWhatTheParserQuotes();
    void areReadWithoutScrolling_data();
    void areReadWithoutScrolling();

private:
    /// Makes a file of that name; what holds nothing is not there.
    QString file(const QString &name, const QByteArray &contents) const;
    TransferResult resultOf(const QStringList &files) const;
    TransferResult exportTo(const QString &file) const;
    std::string store() const { return m_folder->filePath("connections.db").toStdString(); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace
{

const QByteArray csvFile = QByteArray::fromStdString(formats::csvHeader()) +
                           "\ninternet,2024-05-31T10:00:00Z,soon,600,10,20,exit,ppp0,,,,home,\n";
const QByteArray shortFile = QByteArray::fromStdString(formats::csvHeader()) + "\ninternet,soon\n";
const QByteArray runningFile = QByteArray::fromStdString(formats::csvHeader()) +
                               "\ninternet,2024-05-31T10:00:00Z,,600,10,20,exit,ppp0,,,,home,\n";
const QByteArray jsonFile = "[{\"profile\": 7}]";
const QByteArray jsonLinesFile = "{\"connected_seconds\":7,}";
const QByteArray logWithoutConnections = "2024-05-31T10:00:00Z gw kernel: Linux\n";
const QByteArray logWithoutEnd =
    "2024-05-31T10:00:00Z gw pppd[7]: Connect: ppp0 <--> /dev/ttyUSB0\n";
const QByteArray logWithoutYears =
    "May 31 10:10:01 gw pppd[7]: Connect time 10.0 minutes.\n"
    "May 31 10:10:01 gw pppd[7]: Sent 10 bytes, received 20 bytes.\n";

void addRow(const char *name, const char *language, const char *fileName,
            const QByteArray &contents, const char *message)
{
    QTest::newRow(name) << QString(language) << QString(fileName) << contents
                        << QString::fromUtf8(message);
}

TransferResult resultOfWork(refdialer::Transfer::Work work)
{
    refdialer::Transfer transfer(std::move(work));
    std::optional<TransferResult> result;
    QObject::connect(&transfer, &refdialer::Transfer::finished, &transfer,
                     [&result](const TransferResult &finished) { result = finished; });
    transfer.start();
    [&result] { QTRY_VERIFY(result); }();
    return result.value_or(TransferResult());
}

QString withLineFeedsWrittenOut(QString name)
{
    return name.replace('\n', "\\n");
}

} // namespace

void ImportMessagesTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QString ImportMessagesTest::file(const QString &name, const QByteArray &contents) const
{
    QFile file(m_folder->filePath(name));
    const bool isMade = contents.isEmpty() || (file.open(QIODevice::WriteOnly) &&
                                               file.write(contents) == contents.size());
    if (!isMade)
        qFatal("%s cannot be written", qPrintable(file.fileName()));
    return file.fileName();
}

TransferResult ImportMessagesTest::resultOf(const QStringList &files) const
{
    return resultOfWork(refdialer::ImportWork(store(), {files, nullptr}));
}

TransferResult ImportMessagesTest::exportTo(const QString &file) const
{
    return resultOfWork(refdialer::ExportWork(store(), {file}));
}

void ImportMessagesTest::speakTheLanguageOfTheProgram_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("message"); // FILE stands for its path

    addRow("a file that is not there", "en", "there.csv", {},
           "\"FILE\" cannot be read: No such file or directory. Check its name and its "
           "permissions.");
    addRow(
        "a file that is not there, German", "de", "there.csv", {},
        "„FILE“ lässt sich nicht lesen: No such file or directory. Prüfen Sie Namen und Rechte.");
    addRow("a file that is not there, Arabic", "ar", "there.csv", {},
           "تتعذر قراءة «\u2066FILE\u2069»\u200f: \u2068No such file or directory\u2069. تحقق من "
           "الاسم ومن الأذونات.");
    addRow("a broken archive, German", "de", "a.gz", "\x1f\x8b",
           "„FILE“ lässt sich nicht bis zum Ende lesen: das Ende fehlt. Nichts wurde importiert.");
    addRow("a broken archive of another kind, German", "de", "a.bz2", "BZh",
           "„FILE“ lässt sich nicht bis zum Ende lesen: der Anfang ist beschädigt. Nichts wurde "
           "importiert.");
    addRow("a column", "en", "a.csv", csvFile,
           "\"FILE\", line 2, column end: \"soon\" is not a time such as 2024-05-31T18:30:00Z. "
           "Nothing was imported.");
    addRow("a column, German", "de", "a.csv", csvFile,
           "„FILE“, Zeile 2, Spalte end: „soon“ ist kein Zeitpunkt wie 2024-05-31T18:30:00Z. "
           "Nichts wurde importiert.");
    addRow("a column, Arabic", "ar", "a.csv", csvFile,
           "«\u2066FILE\u2069»، السطر \u200e2\u200e، العمود \u200eend\u200e\u200f: "
           "«\u2068soon\u2069» ليس وقتًا بالشكل \u200e2024-05-31T18:30:00Z\u200e. لم يُستورد شيء.");
    addRow("a column, Chinese", "zh_CN", "a.csv", csvFile,
           "“FILE”，第 2 行，“end”列：“soon”不是 2024-05-31T18:30:00Z 这样的时间。");
    addRow("too few columns, German", "de", "a.csv", shortFile,
           "„FILE“, Zeile 2, Spalte end: die Zeile hat 2 statt 13 Spalten. Nichts wurde "
           "importiert.");
    addRow("a member", "en", "a.json", jsonFile,
           "\"FILE\", connection 1: member \"profile\": it is no text. Nothing was imported.");
    addRow("a member, German", "de", "a.json", jsonFile,
           "„FILE“, Verbindung 1: Feld „profile“: kein Text. Nichts wurde importiert.");
    addRow("a member, Arabic", "ar", "a.json", jsonFile,
           "«\u2066FILE\u2069»، الاتصال \u200e1\u200e\u200f: الحقل «\u2068profile\u2069»\u200f: "
           "ليس نصًا. لم يُستورد شيء.");
    addRow("what is no JSON, German", "de", "a.jsonl", jsonLinesFile,
           "„FILE“, Zeile 1: parse error at line 1, column 24: syntax error while parsing object "
           "key - unexpected '}'; expected string literal. Nichts wurde importiert.");
    addRow("a log without connections, German", "de", "syslog", logWithoutConnections,
           "„FILE“ enthält keine Zeile, in der pppd von einer Verbindung berichtet. Geben Sie das "
           "Systemprotokoll eines Rechners an, der sich damit einwählt.");
    addRow("a line of a log", "en", "syslog", logWithoutEnd,
           "Not used, a connection does not end in the log: 1; first in line 1 of \"FILE\": ");
    addRow("a line of a log, German", "de", "syslog", logWithoutEnd,
           "Nicht benutzt, eine Verbindung endet nicht im Protokoll: 1; zuerst in Zeile 1 von "
           "„FILE“: ");
    addRow("a line of a log, Arabic", "ar", "syslog", logWithoutEnd,
           "لم يُستخدم، \u2068اتصال لا ينتهي في سجل النظام\u2069\u200f: \u200e1\u200e؛ أول مرة في "
           "السطر \u200e1\u200e من «\u2066FILE\u2069»\u200f: \u2068");
    addRow("a connection that lasts, German", "de", "a.csv", runningFile,
           "Nicht benutzt, die Verbindung bestand noch: 1; zuerst in Zeile 2 von „FILE“: ");
    addRow("what is no JSON, Arabic", "ar", "a.json", "[",
           "«\u2066FILE\u2069»\u200f: \u2068parse error at line 1, column 2");
    addRow("a log without years, Arabic", "ar", "syslog", logWithoutYears,
           "«\u2066FILE\u2069» لا يبيّن السنوات؛ ");
    addRow("a log without years, German", "de", "syslog", logWithoutYears,
           "„FILE“ zeigt keine Jahre; als Jahr der letzten Zeile wurde ");
}

void ImportMessagesTest::speakTheLanguageOfTheProgram()
{
    QFETCH(QString, language);
    QFETCH(QString, name);
    QFETCH(QByteArray, contents);
    QFETCH(QString, message);
    QVERIFY(refhost::setLanguage(language));
    const QString path = file(name, contents);
    const QString details = resultOf({path}).details;
    QVERIFY2(details.startsWith(message.replace("FILE", path)), qPrintable(details));
}

/// What looks like a place to fill is none.
void ImportMessagesTest::leaveNamesOfFilesAsTheyAre()
{
    const QString path = file("100%2", logWithoutYears);
    const QString details = resultOf({path}).details;
    QVERIFY2(details.startsWith('"' + path + "\" does not show its years"), qPrintable(details));
}

void ImportMessagesTest::writeOutLineFeedsInNames_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("message"); // FILE stands for its path

    QTest::newRow("not there") << QByteArray() << "\"FILE\" cannot be read: ";
    QTest::newRow("a wrong line") << csvFile << "\"FILE\", line 2, column end: ";
    QTest::newRow("a line of no use")
        << runningFile << "Not used, the connection still lasted: 1; first in line 2 of \"FILE\": ";
}

/// However many, nothing of the name is left out.
void ImportMessagesTest::writeOutLineFeedsInNames()
{
    QFETCH(QByteArray, contents);
    QFETCH(QString, message);
    const QString path = file("a\n\n\nb.csv", contents);
    const QString details = resultOf({path}).details;
    message.replace("FILE", withLineFeedsWrittenOut(path));
    QVERIFY2(details.startsWith(message), qPrintable(details));
}

void ImportMessagesTest::writeOutLineFeedsInTheNameOfTheHistory()
{
    const QString path = file("a\nb.db", "\n");
    const refdialer::ImportWork work(path.toStdString(), {{path}, nullptr});
    QCOMPARE(resultOfWork(work).details,
             '"' + withLineFeedsWrittenOut(path) +
                 "\" belongs to the history that this window shows. Choose another file.");
}

void ImportMessagesTest::writeOutLineFeedsInNamesOfExports()
{
    QVERIFY(history::Store::openOrCreate(store()));
    const QString folder = m_folder->filePath("a\nb");
    QVERIFY(exportTo(folder + "/c.csv")
                .details.startsWith('"' + withLineFeedsWrittenOut(folder) +
                                    "/c.csv\" cannot be written: "));
    QVERIFY(QDir().mkdir(folder));
    QCOMPARE(exportTo(folder).details, '"' + withLineFeedsWrittenOut(folder) +
                                           "\" is a folder, a pipe or a device. Choose a file.");
    QCOMPARE(exportTo(folder + "/c.csv").details,
             "They are in \"" + withLineFeedsWrittenOut(folder) + "/c.csv\".");
}

void ImportMessagesTest::writeOutWhatTheParserQuotes_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("JSON") << QByteArray("[{\"a\u202eb");
    QTest::newRow("JSON, an object a line") << QByteArray("{\"connected_seconds\":\"a\u202eb");
}

/// The mark would turn what follows it.
void ImportMessagesTest::writeOutWhatTheParserQuotes()
{
    QFETCH(QByteArray, contents);
    const QString details = resultOf({file("a.json", contents)}).details;
    QVERIFY2(details.contains("parse error"), qPrintable(details));
    QVERIFY2(details.contains("a\\u202e"), qPrintable(details));
    QVERIFY2(!details.contains(QChar(0x202e)), qPrintable(details));
}

void ImportMessagesTest::areReadWithoutScrolling_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : refhost::availableLanguages())
        QTest::newRow(qPrintable(language)) << language;
}

void ImportMessagesTest::areReadWithoutScrolling()
{
    QFETCH(QString, language);
    QVERIFY(refhost::setLanguage(language));
    refdialer::TransferDialog dialog(refdialer::TransferKind::Import);
    dialog.show();
    dialog.showResult(resultOf({file("short.csv", shortFile)}));
    const auto &details = *dialog.findChild<QPlainTextEdit *>();
    QTRY_VERIFY(details.isVisible() && details.viewport()->height() > 0);
    QTRY_COMPARE(details.verticalScrollBar()->maximum(), 0);
}

QTEST_MAIN(ImportMessagesTest)
#include "tst_importmessages.moc"
