// SPDX-License-Identifier: MIT
#include "history/Store.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// The real program, as its user runs it.
class TestRefdialer : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void showsItsOptionsWithoutADisplay();
    void documentsEveryOption();
    void speaksTheSystemsLanguage_data();
    void speaksTheSystemsLanguage();
    void refusesWrongUsageWithoutADisplay();

    void drawsTheSampleHistory();
    void drawsTheHistoryInAnotherLanguage();
    void drawsAnEmptyHistoryAndMakesNoFile();
    void saysWhenThePictureCannotBeWritten();

    void saysWhenThereIsNoPlugin();
    void saysWhenAPluginIsAText();
    void keepsItsExitCodeWhenItsMessageIsClosed();

    void leavesAStoreThatItCannotUseAlone_data();
    void leavesAStoreThatItCannotUseAlone();
    void saysWhenTheStoreCannotBeReached();

    void isQuietUnlessDebugging();
    void cleansUpWhenItIsTerminated();

private:
    struct Outcome {
        int code;
        QString output;
        QString errors;
    };
    void start(QProcess &program, const QStringList &arguments) const;
    Outcome run(const QStringList &arguments) const;
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QByteArray contentOf(const QString &name) const;
    bool write(const QString &name, const QByteArray &content) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QProcessEnvironment m_environment;
};

namespace
{

/// A store with one connection, raised to a later schema version in its header.
QByteArray newerStore(const QString &file)
{
    {
        auto store = history::Store::openOrCreate(file.toStdString());
        history::Connection connection;
        connection.profile = "internet.example";
        if (!store || !store.value().add(connection))
            return {};
    }
    constexpr int lowestByteOfUserVersion = 63;
    QFile stored(file);
    if (!stored.open(QFile::ReadOnly))
        return {};
    QByteArray content = stored.readAll();
    content[lowestByteOfUserVersion] = 99;
    return content;
}

int coloursIn(const QImage &image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    }
    return int(colours.size());
}

} // namespace

void TestRefdialer::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QVERIFY(QDir(m_folder->path()).mkdir("temporary"));
    m_environment = QProcessEnvironment::systemEnvironment();
    for (const char *const name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY", "NETINFO_STORE",
                                   "LANGUAGE", "QT_LOGGING_RULES"})
        m_environment.remove(QString::fromLatin1(name));
    m_environment.insert("XDG_DATA_HOME", path("data"));
    m_environment.insert("XDG_CONFIG_HOME", path("config"));
    m_environment.insert("XDG_RUNTIME_DIR", m_folder->path());
    m_environment.insert("TMPDIR", path("temporary"));
    m_environment.insert("QT_FORCE_STDERR_LOGGING", "1");
}

void TestRefdialer::start(QProcess &program, const QStringList &arguments) const
{
    program.setProcessEnvironment(m_environment);
    program.setWorkingDirectory(m_folder->path());
    program.start(REFDIALER, arguments);
}

TestRefdialer::Outcome TestRefdialer::run(const QStringList &arguments) const
{
    QProcess program;
    start(program, arguments);
    if (!program.waitForFinished() || program.exitStatus() != QProcess::NormalExit)
        return {-1, {}, program.errorString()};
    return {program.exitCode(), QString::fromLocal8Bit(program.readAllStandardOutput()),
            QString::fromLocal8Bit(program.readAllStandardError())};
}

QByteArray TestRefdialer::contentOf(const QString &name) const
{
    QFile file(path(name));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

bool TestRefdialer::write(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    return file.open(QFile::WriteOnly) && file.write(content) == content.size();
}

void TestRefdialer::showsItsOptionsWithoutADisplay()
{
    const Outcome outcome = run({"--help"});
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.errors, QString());
    for (const char *const option :
         {"--store", "--plugin", "--lang", "--debug", "--demo", "--screenshot", "--version"})
        QVERIFY2(outcome.output.contains(option), option);
    QVERIFY(run({"--version"}).output.startsWith("refdialer "));
}

void TestRefdialer::documentsEveryOption()
{
    const QString help = run({"--help"}).output;
    QFile page(MAN_PAGE);
    QVERIFY(page.open(QFile::ReadOnly));
    const QString manual = QString::fromUtf8(page.readAll()).remove('\\');
    static const QRegularExpression option("--\\w+");
    int seen = 0;
    for (auto match = option.globalMatch(help); match.hasNext(); ++seen) {
        const QString name = match.next().captured();
        QVERIFY2(manual.contains(name), qPrintable(name));
    }
    QVERIFY(seen >= 8);
}

void TestRefdialer::speaksTheSystemsLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("text");
    QTest::newRow("German") << "de_AT.UTF-8"
                            << "Diese Hilfe zeigen.";
    QTest::newRow("English") << "en_GB.UTF-8"
                             << "Show this help.";
    QTest::newRow("Brazilian Portuguese") << "pt_BR.UTF-8"
                                          << "Exibir esta ajuda.";
    QTest::newRow("European Portuguese, which Brazilian is nearest to") << "pt_PT.UTF-8"
                                                                        << "Exibir esta ajuda.";
    QTest::newRow("Chinese") << "zh_CN.UTF-8" << QString::fromUtf8("显示此帮助。");
    QTest::newRow("one without texts") << "fi_FI.UTF-8"
                                       << "Show this help.";
    QTest::newRow("none") << "C"
                          << "Show this help.";
}

void TestRefdialer::speaksTheSystemsLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QString, text);
    m_environment.insert("LC_ALL", locale);
    const Outcome outcome = run({"--help"});
    QVERIFY2(outcome.output.contains(text), qPrintable(outcome.output));
}

void TestRefdialer::refusesWrongUsageWithoutADisplay()
{
    const Outcome language = run({"--lang", "xx"});
    QCOMPARE(language.code, 2);
    QVERIFY2(language.errors.contains("de, en"), qPrintable(language.errors));
    QCOMPARE(run({"--demo", "--store", path("connections.db")}).code, 2);
    QCOMPARE(run({"--no-such-option"}).code, 2);
}

void TestRefdialer::drawsTheSampleHistory()
{
    const Outcome outcome = run({"--demo", "--screenshot", path("history.png")});
    QCOMPARE(outcome.errors, QString());
    QCOMPARE(outcome.code, 0);
    const QImage picture(path("history.png"), "PNG");
    QVERIFY(picture.width() >= 710 && picture.width() <= 2000);
    QVERIFY(picture.height() >= 300 && picture.height() <= 1500);
    QVERIFY(coloursIn(picture) > 10);

    // The sample rows are what makes it another picture than that of no history.
    QCOMPARE(run({"--store", path("none.db"), "--screenshot", path("empty.png")}).code, 0);
    const QRect rows(picture.width() / 8, picture.height() / 3, picture.width() / 2,
                     picture.height() / 3);
    QVERIFY(picture.copy(rows) != QImage(path("empty.png")).copy(rows));

    QVERIFY(!QDir(path("data")).exists());
    QVERIFY(QDir(path("temporary")).isEmpty());
}

void TestRefdialer::drawsTheHistoryInAnotherLanguage()
{
    QCOMPARE(run({"--demo", "--lang", "en", "--screenshot", path("en.png")}).code, 0);
    QCOMPARE(run({"--demo", "--lang", "de", "--screenshot", path("de.png")}).code, 0);
    QVERIFY(QImage(path("en.png")) != QImage(path("de.png")));
}

void TestRefdialer::drawsAnEmptyHistoryAndMakesNoFile()
{
    const Outcome outcome = run({"--screenshot", path("history.png")});
    QCOMPARE(outcome.errors, QString());
    QCOMPARE(outcome.code, 0);
    QVERIFY(coloursIn(QImage(path("history.png"))) > 1);
    QVERIFY(!QDir(path("data")).exists());
}

void TestRefdialer::saysWhenThePictureCannotBeWritten()
{
    const Outcome outcome = run({"--screenshot", path("missing/history.png")});
    QCOMPARE(outcome.code, 4);
    QVERIFY2(outcome.errors.contains(path("missing/history.png")), qPrintable(outcome.errors));
}

void TestRefdialer::saysWhenThereIsNoPlugin()
{
    const Outcome outcome = run({"--plugin", "missing.so", "--screenshot", path("history.png")});
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.errors.contains(path("missing.so")), qPrintable(outcome.errors));
    QVERIFY(!QFile::exists(path("history.png")));
}

void TestRefdialer::saysWhenAPluginIsAText()
{
    QVERIFY(write("text.so", "Not a library.\n"));
    const Outcome outcome = run({"--plugin", "text.so", "--screenshot", path("history.png")});
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.errors.contains(path("text.so")), qPrintable(outcome.errors));
}

void TestRefdialer::keepsItsExitCodeWhenItsMessageIsClosed()
{
    m_environment.insert("QT_QPA_PLATFORM", "offscreen");
    QProcess program;
    start(program, {"--plugin", "missing.so"});
    program.setReadChannel(QProcess::StandardError);
    QVERIFY(program.waitForReadyRead());
    program.terminate();
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 1);
}

void TestRefdialer::leavesAStoreThatItCannotUseAlone_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("a text") << QByteArray("Not a database.\n").repeated(100);
    const QTemporaryDir folder;
    const QByteArray newer = newerStore(folder.filePath("newer.db"));
    QVERIFY(!newer.isEmpty());
    QTest::newRow("a newer store") << newer;
    QTest::newRow("half a store") << newer.left(newer.size() / 2);
}

void TestRefdialer::leavesAStoreThatItCannotUseAlone()
{
    QFETCH(QByteArray, content);
    QVERIFY(write("connections.db", content));
    const Outcome outcome = run({"--store", "connections.db", "--screenshot", path("history.png")});
    QCOMPARE(outcome.code, 3);
    QVERIFY2(outcome.errors.contains(path("connections.db")), qPrintable(outcome.errors));
    QCOMPARE(contentOf("connections.db"), content);
    QVERIFY(!QFile::exists(path("connections.db-wal")));
    QVERIFY(!QFile::exists(path("history.png")));
}

void TestRefdialer::saysWhenTheStoreCannotBeReached()
{
    QVERIFY(write("file", "Not a folder.\n"));
    const Outcome outcome =
        run({"--store", "file/connections.db", "--screenshot", path("history.png")});
    QCOMPARE(outcome.code, 3);
    QVERIFY2(outcome.errors.contains(path("file/connections.db")), qPrintable(outcome.errors));
}

void TestRefdialer::isQuietUnlessDebugging()
{
    QCOMPARE(run({"--demo", "--screenshot", path("a.png")}).errors, QString());
    const QString log = run({"--demo", "--debug", "--screenshot", path("a.png")}).errors;
    static const QRegularExpression ends("^Start: \\S+ OnDestroy",
                                         QRegularExpression::MultilineOption);
    QVERIFY2(log.contains("PopulateTableRowOfConnectionRecord"), qPrintable(log));
    QCOMPARE(log.count(ends), 1);
}

void TestRefdialer::cleansUpWhenItIsTerminated()
{
    m_environment.insert("QT_QPA_PLATFORM", "offscreen");
    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    start(program, {"--demo", "--debug"});
    QByteArray log;
    // The window stands when the plug-in has been fitted to it.
    QTRY_VERIFY(log.append(program.readAll()).contains("FitSize"));
    const QStringList folders = QDir(path("temporary")).entryList({"refdialer-demo-*"});
    QCOMPARE(folders.size(), 1);
    const QString sample = path("temporary/" + folders.first() + "/connections.db");
    const auto store = history::Store::openForReading(sample.toStdString());
    QCOMPARE(store.value().plans().value().size(), std::size_t(1)); // to try them out
    program.terminate();
    QVERIFY(program.waitForFinished());
    log.append(program.readAll());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    QCOMPARE(log.count("OnDestroy: 487"), 1);
    QVERIFY(QDir(path("temporary")).isEmpty());
}

QTEST_GUILESS_MAIN(TestRefdialer)
#include "tst_refdialer.moc"
