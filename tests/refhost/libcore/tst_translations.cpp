// SPDX-License-Identifier: MIT
#include "Change.h"
#include "refhost/libcore/Host.h"
#include "refhost/translations/Identifiers.h"

#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#include <optional>

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void haveATextForEachIdentifier_data();
    void haveATextForEachIdentifier();
    void knowWhateverThePluginAsksFor_data();
    void knowWhateverThePluginAsksFor();
    void knowEveryIdentifierInThePluginsSources();
    void areCompleteAndUpToDate_data();
    void areCompleteAndUpToDate();
    void keepThePlaceholders_data();
    void keepThePlaceholders();
    void sayWhetherTheyAreReviewed_data();
    void sayWhetherTheyAreReviewed();
    void areInTheDesktopsFiles_data();
    void areInTheDesktopsFiles();
};

namespace
{

/// The identifiers that the plug-in passes on, by its contract with the host.
const char *const contract[] = {
    "IDS_BTN_OK",
    "IDS_COMBO_ALLAPN",
    "IDS_COMBO_LASTMONTH",
    "IDS_COMBO_BEFORELASTMONTH",
    "IDS_COMBO_THISMONTH",
    "IDS_GROUP_STATISTIC",
    "IDS_LIST_APN",
    "IDS_LIST_CONNECTEDTIME",
    "IDS_LIST_DOWNLOADED",
    "IDS_LIST_ENDTIME",
    "IDS_LIST_STARTTIME",
    "IDS_LIST_UPLOADED",
    "IDS_MENU_DELETE",
    "IDS_MENU_DELETEALL",
    "IDS_PROMPT_CAPTION",
    "IDS_STC_APN",
    "IDS_STC_EXPLAIN_TEXT",
    "IDS_STC_MONTH",
    "IDS_STC_SINGLEPACKET_UNIT",
    "IDS_STR_CLEARALL",
    "IDS_STR_DELETE",
    "IDS_TITLE_SINGLE",
    "IDS_TITLE_TOTAL",
    "IDS_TREE_DOWNLOADED_DATA",
    "IDS_TREE_TIME_TRANSFER",
    "IDS_TREE_UPLOADED_DATA",
};

const QString pluginContext = QStringLiteral("NetInfoRecordUIPlugin");

template <std::size_t Size>
QStringList listOf(const char *const (&identifiers)[Size])
{
    QStringList list;
    for (const char *const identifier : identifiers)
        list.append(QString::fromLatin1(identifier));
    return list;
}

struct Message {
    QString source;
    QStringList translations; ///< one, or as many as there are plural forms
    QString state;
};

/// Nothing if the file cannot be read.
std::optional<QList<Message>> messagesIn(const QString &file)
{
    QFile input(file);
    if (!input.open(QFile::ReadOnly))
        return {};
    QList<Message> messages;
    bool hasPluralForms = false;
    QXmlStreamReader reader(&input);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("message")) {
            hasPluralForms = reader.attributes().hasAttribute("numerus");
        } else if (reader.name() == QLatin1String("source")) {
            messages.append({reader.readElementText(), {}, {}});
        } else if (reader.name() == QLatin1String("translation")) {
            messages.last().state = reader.attributes().value("type").toString();
            if (!hasPluralForms)
                messages.last().translations = QStringList(reader.readElementText());
        } else if (reader.name() == QLatin1String("numerusform")) {
            messages.last().translations.append(reader.readElementText());
        }
    }
    if (reader.hasError())
        return {};
    return messages;
}

QString translationFile(const QString &name)
{
    return QStringLiteral(PROJECT_SOURCES "/refhost/translations/%1.ts").arg(name);
}

/// Of a file that tells the desktop of the program.
QString contentOf(const QString &name)
{
    QFile file(PROJECT_SOURCES "/apps/refdialer/data/" + name);
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList placeholders(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("%\\d"));
    QStringList found;
    for (auto match = pattern.globalMatch(text); match.hasNext();)
        found.append(match.next().captured());
    found.sort();
    return found;
}

void addLanguageRows()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : refhost::availableLanguages())
        QTest::newRow(qPrintable(refhost::languageName(language))) << language;
}

/// Each file with what Qt's tool makes it of: what the program itself says is English,
/// but for the plural forms.
void addFileRows()
{
    const QStringList identifiers("refhost/translations/Identifiers.h");
    const QStringList program{"refhost/libcore", "history", "formats", "apps/common",
                              "apps/refdialer"};
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("sources");
    QTest::newRow("English") << "netinforecord_en" << identifiers;
    QTest::newRow("English plural forms") << "plurals_en" << program + QStringList("-pluralonly");
    for (const QString &language : refhost::availableLanguages()) {
        if (language != "en")
            QTest::newRow(qPrintable(refhost::languageName(language)))
                << "netinforecord_" + language << identifiers + program;
    }
}

} // namespace

void TestTranslations::haveATextForEachIdentifier_data()
{
    addLanguageRows();
}

void TestTranslations::haveATextForEachIdentifier()
{
    QFETCH(QString, language);
    QVERIFY(refhost::setLanguage(language));
    const auto check = [](const QStringList &identifiers, const QString &context) {
        for (const QString &id : identifiers) {
            const QString text = Change::tr(id, context);
            QVERIFY2(!text.trimmed().isEmpty(), qPrintable(id));
            QVERIFY2(text != id, qPrintable(id));
        }
    };
    check(listOf(refhost::pluginIdentifiers), pluginContext);
    check(listOf(refhost::hostIdentifiers), "Host");
}

void TestTranslations::knowWhateverThePluginAsksFor_data()
{
    QTest::addColumn<QString>("id");
    for (const QString &id : listOf(contract))
        QTest::newRow(qPrintable(id)) << id;
}

void TestTranslations::knowWhateverThePluginAsksFor()
{
    QFETCH(QString, id);
    QVERIFY(listOf(refhost::pluginIdentifiers).contains(id));
}

void TestTranslations::knowEveryIdentifierInThePluginsSources()
{
    const QStringList known = listOf(refhost::pluginIdentifiers) + listOf(refhost::hostIdentifiers);
    static const QRegularExpression pattern(QStringLiteral("\"(IDS_\\w+)\""));
    int seen = 0;
    QDirIterator sources(PROJECT_SOURCES "/src", {"*.cpp", "*.h"}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        QFile file(sources.next());
        QVERIFY(file.open(QFile::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        for (auto match = pattern.globalMatch(text); match.hasNext(); ++seen) {
            const QString id = match.next().captured(1);
            QVERIFY2(known.contains(id), qPrintable(id + " in " + file.fileName()));
        }
    }
    QVERIFY(seen > 0);
}

void TestTranslations::areCompleteAndUpToDate_data()
{
    addFileRows();
}

/// Lets Qt look for texts in the sources that the file lacks, or the other way round,
/// and for plural forms that the language has.
void TestTranslations::areCompleteAndUpToDate()
{
    QFETCH(QString, file);
    QFETCH(QStringList, sources);
    const QTemporaryDir folder;
    const QString copy = folder.filePath("copy.ts");
    QVERIFY(QFile::copy(translationFile(file), copy));
    QProcess lupdate;
    lupdate.setWorkingDirectory(PROJECT_SOURCES);
    lupdate.start(LUPDATE, sources + QStringList({"-silent", "-tr-function-alias",
                                                  "QT_TRANSLATE_NOOP+=translatable", "-ts", copy}));
    QVERIFY(lupdate.waitForFinished());
    QCOMPARE(lupdate.exitCode(), 0);
    const auto messages = messagesIn(copy);
    QVERIFY(messages);
    for (const Message &message : *messages) {
        QVERIFY2(message.state.isEmpty(), qPrintable(message.state + ": " + message.source));
        QVERIFY2(!message.translations.contains(QString()), qPrintable(message.source));
    }
}

void TestTranslations::keepThePlaceholders_data()
{
    addFileRows();
}

/// But for the number of things, which a language may say in another way.
void TestTranslations::keepThePlaceholders()
{
    QFETCH(QString, file);
    const auto messages = messagesIn(translationFile(file));
    QVERIFY(messages);
    for (const Message &message : *messages) {
        for (const QString &translation : message.translations)
            QCOMPARE(placeholders(translation), placeholders(message.source));
    }
}

void TestTranslations::sayWhetherTheyAreReviewed_data()
{
    addLanguageRows();
}

void TestTranslations::sayWhetherTheyAreReviewed()
{
    QFETCH(QString, language);
    QVERIFY(refhost::setLanguage(language));
    const QString answer = Change::tr("IDS_LANGUAGE_REVIEWED", "Host");
    QVERIFY2(answer == "yes" || answer == "no", qPrintable(answer));
}

void TestTranslations::areInTheDesktopsFiles_data()
{
    addLanguageRows();
}

void TestTranslations::areInTheDesktopsFiles()
{
    QFETCH(QString, language);
    if (language == "en")
        return;
    const QString entry = contentOf("org.example.refdialer.desktop");
    for (const char *const key : {"Name", "GenericName", "Comment", "Keywords"})
        QVERIFY2(entry.contains(QString("\n%1[%2]=").arg(key, language)), key);
    const QString description = contentOf("org.example.refdialer.metainfo.xml");
    const auto textsIn = [&description](QString name) {
        return description.count(QString("xml:lang=\"%1\"").arg(name.replace('_', '-')));
    };
    QVERIFY(textsIn(language) > 0);
    QCOMPARE(textsIn(language), textsIn("de"));
}

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
