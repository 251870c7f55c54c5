// SPDX-License-Identifier: MIT
#include "FileTransfer.h"
#include "MenuEntry.h"
#include "apps/common/MachineId.h"
#include "apps/refdialer/ExportWork.h"
#include "apps/refdialer/TransferDialog.h"
#include "formats/Formats.h"
#include "refhost/libcore/Host.h"

#include <QAction>
#include <QFileDialog>
#include <QPlainTextEdit>
#include <QTest>

#include <sys/stat.h>

#include <system_error>

using refdialer::ExportWork;
using refdialer::TransferProgress;
using refdialer::TransferState;

/// The history on its way into a file by the File menu.
class FileExportTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_user.reset(); }

    void writesEveryFormat_data();
    void writesEveryFormat();
    void takesTheFormatOfTheName();
    void comesBackAsItWas();
    void leavesOutWhatStillLasts();
    void replacesAFileOnlyIfTheUserAgrees_data();
    void replacesAFileOnlyIfTheUserAgrees();
    void tellsWhyNothingIsExported_data();
    void tellsWhyNothingIsExported();
    void tellsThatTheHistoryIsDamaged();
    void leavesTheEarlierFileWhenTheDiskIsFull();
    void leavesTheEarlierFileWhenCancelled_data();
    void leavesTheEarlierFileWhenCancelled();

    void opensByItsKey();
    void letsTheResultBeCopied();
    void translatesItself();

private:
    void exportTo(const QString &file, const QString &kind = {}) const;

    std::unique_ptr<FileTransfer> m_user;
};

namespace
{

history::Connection withoutHours()
{
    history::Connection made = connection("first", 0);
    ++made.startUtc;
    return made;
}

/// Nothing on a system without a number of its own, as some containers are.
std::string thisMachine()
{
    try {
        return common::machineId();
    } catch (const std::system_error &) {
        return {};
    }
}

history::Connection withHours()
{
    history::Connection made = connection("second", 1);
    made.hours = {{made.startUtc, false, 2000, 5 * 1024 * 1024},
                  {made.startUtc + 3600, true, 48, 0}};
    return made;
}

} // namespace

void FileExportTest::init()
{
    m_user = std::make_unique<FileTransfer>();
    QVERIFY(m_user->history.store({withoutHours(), withHours()}));
    QVERIFY(m_user->history.open());
}

void FileExportTest::exportTo(const QString &file, const QString &kind) const
{
    m_user->choose("Export…", {file}, kind);
    QTRY_VERIFY(m_user->isDone());
}

void FileExportTest::writesEveryFormat_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("contents");

    for (const formats::ExportFormat &format : formats::exportFormats) {
        std::vector<history::Connection> exported = {withoutHours(), withHours()};
        exported[0].key = 1;
        exported[1].key = 2;
        if (!format.carriesHours)
            exported[1].hours.clear();
        const formats::ExportOptions options = {thisMachine(), std::nullopt};
        if (format.namesMachine && options.machine.empty())
            continue;
        QTest::newRow(format.name)
            << QString(format.title) << QStringLiteral("history.%1").arg(format.suffix)
            << QByteArray::fromStdString(formats::documentOf(*format.writer(options), exported));
    }
}

void FileExportTest::writesEveryFormat()
{
    QFETCH(QString, kind);
    QFETCH(QString, file);
    QFETCH(QByteArray, contents);
    // The name gets the suffix of the kind.
    exportTo(m_user->path("history"), kind);
    QCOMPARE(m_user->shownText(), QString("Connections exported: 2"));
    QCOMPARE(m_user->shownDetails(), QString("They are in \"%1\".").arg(m_user->path(file)));
    QCOMPARE(m_user->filesThere(), QStringList(file));
    QCOMPARE(FileTransfer::contentsOf(m_user->path(file)), contents);
}

void FileExportTest::takesTheFormatOfTheName()
{
    exportTo(m_user->path("history.JSON"), "CSV table");
    QVERIFY(FileTransfer::contentsOf(m_user->path("history.JSON")).startsWith('['));
    exportTo(m_user->path("history.txt"), "JSON with");
    QVERIFY(FileTransfer::contentsOf(m_user->path("history.txt")).startsWith('['));
}

void FileExportTest::comesBackAsItWas()
{
    const QByteArray before = m_user->contents();
    QCOMPARE(before.count("\"hour\""), 2);
    exportTo(m_user->path("history.json"));
    QVERIFY(m_user->history.runSql("DELETE FROM connection_hour"));
    QVERIFY(m_user->history.runSql("DELETE FROM connection"));
    m_user->choose("Import…", {m_user->path("history.json")});
    QTRY_COMPARE(m_user->shownText(), QString("Connections added: 2 | In the history already: 0"));
    QCOMPARE(m_user->contents(), before);
}

void FileExportTest::leavesOutWhatStillLasts()
{
    history::OpenConnection open;
    open.profile = "lasting";
    open.interfaceName = "wwan0";
    open.startUtc = open.updatedUtc = firstDay;
    open.bootId = "boot";
    auto store = history::Store::openForRecording(m_user->history.storePath());
    QVERIFY(store.value().begin(open));
    exportTo(m_user->path("history.csv"));
    QCOMPARE(m_user->shownText(), QString("Connections exported: 2"));
    QVERIFY(!FileTransfer::contentsOf(m_user->path("history.csv")).contains("lasting"));
    QCOMPARE(store.value().listOpen().value().size(), std::size_t(1));
}

void FileExportTest::replacesAFileOnlyIfTheUserAgrees_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("isReplaced");

    QTest::newRow("yes") << "&Yes" << true;
    QTest::newRow("no") << "&No" << false;
}

void FileExportTest::replacesAFileOnlyIfTheUserAgrees()
{
    QFETCH(QString, answer);
    QFETCH(bool, isReplaced);
    const QString file = m_user->file("history.csv", "earlier");
    m_user->answer(answer);
    m_user->choose("Export…", {file});
    QVERIFY(!m_user->question().isEmpty());
    QCOMPARE(m_user->dialog() != nullptr, isReplaced);
    QTRY_COMPARE(m_user->isDone(), isReplaced);
    QCOMPARE(FileTransfer::contentsOf(file) == "earlier", !isReplaced);
}

void FileExportTest::tellsWhyNothingIsExported_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");

    QTest::newRow("no such folder") << "missing/history.csv"
                                    << "cannot be written: ";
    QTest::newRow("a pipe") << "pipe.csv"
                            << "Choose a file.";
    QTest::newRow("the history") << "history.csv"
                                 << "belongs to the history";
    QTest::newRow("what is kept beside the history") << "unwritten.csv"
                                                     << "belongs to the history";
}

void FileExportTest::tellsWhyNothingIsExported()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    QCOMPARE(mkfifo(QFile::encodeName(m_user->path("pipe.csv")).constData(), 0600), 0);
    const QString store = QString::fromStdString(m_user->history.storePath());
    QVERIFY(QFile::link(store, m_user->path("history.csv")));
    QVERIFY(QFile::link(store + "-unwritten", m_user->path("unwritten.csv")));
    const QStringList files = m_user->filesThere();
    const QByteArray before = m_user->contents();
    m_user->answer("&Yes"); // what is there may be replaced
    exportTo(m_user->path(file));
    QCOMPARE(m_user->shownText(), QString("Nothing was exported."));
    QVERIFY2(m_user->shownDetails().contains(reason) &&
                 m_user->shownDetails().contains(m_user->path(file)),
             qPrintable(m_user->shownDetails()));
    QCOMPARE(m_user->filesThere(), files);
    QCOMPARE(m_user->contents(), before);
}

void FileExportTest::tellsThatTheHistoryIsDamaged()
{
    QFile store(QString::fromStdString(m_user->history.storePath()));
    QVERIFY(store.open(QIODevice::ReadWrite));
    store.write(QByteArray(static_cast<int>(store.size()), 'x'));
    store.close();
    exportTo(m_user->path("history.csv"));
    QCOMPARE(m_user->shownText(), QString("Nothing was exported."));
    QVERIFY2(m_user->shownDetails().contains(store.fileName()), qPrintable(m_user->shownDetails()));
    QCOMPARE(m_user->filesThere(), QStringList());
}

void FileExportTest::leavesTheEarlierFileWhenTheDiskIsFull()
{
    std::vector<history::Connection> many;
    for (int i = 0; i < 5000; ++i)
        many.push_back(connection("internet", i));
    QVERIFY(m_user->history.store(many));
    const QString file = m_user->file("history.csv", "earlier");
    m_user->answer("&Yes");
    {
        const FullDisk disk(131072);
        exportTo(file);
    }
    QCOMPARE(m_user->shownText(), QString("Nothing was exported."));
    QVERIFY2(m_user->shownDetails().contains("Check the disk"), qPrintable(m_user->shownDetails()));
    QCOMPARE(FileTransfer::contentsOf(file), QByteArray("earlier"));
    QCOMPARE(m_user->filesThere(), QStringList("history.csv"));
}

void FileExportTest::leavesTheEarlierFileWhenCancelled_data()
{
    QTest::addColumn<QString>("stage");

    QTest::newRow("before anything") << "Reading the history";
    QTest::newRow("while writing") << "Writing connections: 0 of 2";
}

void FileExportTest::leavesTheEarlierFileWhenCancelled()
{
    QFETCH(QString, stage);
    const QString file = m_user->file("history.csv", "earlier");
    std::atomic<bool> isCancelled = false;
    TransferProgress progress(isCancelled, [&](const TransferState &state) {
        isCancelled = isCancelled || state.text == stage;
    });
    const ExportWork work(m_user->history.storePath(), {file});
    try {
        work(progress);
        QFAIL("it was not cancelled");
    } catch (const refdialer::TransferCancelled &) {
    }
    QCOMPARE(FileTransfer::contentsOf(file), QByteArray("earlier"));
    QCOMPARE(m_user->filesThere(), QStringList("history.csv"));
}

void FileExportTest::opensByItsKey()
{
    m_user->history.pressKey(Qt::Key_E, Qt::ControlModifier);
    auto *const chooser = m_user->history.window().findChild<QFileDialog *>();
    QVERIFY(chooser && chooser->isVisible());
    QCOMPARE(chooser->nameFilters().size(), int(formats::exportFormats.size()));
    QTest::keyClick(chooser, Qt::Key_Escape);
    QTRY_VERIFY(!m_user->history.window().findChild<QFileDialog *>());
    QVERIFY(!m_user->dialog());
}

void FileExportTest::letsTheResultBeCopied()
{
    exportTo(m_user->path("history.csv"));
    auto *const details = m_user->dialog()->findChild<QPlainTextEdit *>();
    QCOMPARE(details->accessibleName(), QString("Details"));
    QTest::keyClick(details, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(details->textCursor().selectedText(), m_user->shownDetails());
    m_user->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_user->dialog());
}

void FileExportTest::translatesItself()
{
    exportTo(m_user->path("history.csv"));
    QVERIFY(refhost::setLanguage("de"));
    QTRY_COMPARE(m_user->dialog()->windowTitle(), QString("Exportieren"));
    QVERIFY(menuEntry(m_user->history.window(), {"Datei", "Importieren …"}));
}

QTEST_MAIN(FileExportTest)
#include "tst_fileexport.moc"
