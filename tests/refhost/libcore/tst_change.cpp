// SPDX-License-Identifier: MIT
#include "Change.h"
#include "refhost/libcore/Host.h"

#include <QLabel>
#include <QTest>
#include <QTranslator>

class TestChange : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(refhost::setLanguage("en")); }

    void showsTheTextOfAKnownIdentifier();
    void showsAnUnknownIdentifierAsItself_data();
    void showsAnUnknownIdentifierAsItself();
    void showsTheIdentifierWhereATextIsEmpty();
    void switchesTheLanguage();
    void keepsOneLanguageInMemory();
    void tellsWindowsThatTheLanguageHasChanged();
    void keepsTheLanguageWhenAnotherIsUnknown_data();
    void keepsTheLanguageWhenAnotherIsUnknown();
    void namesEachLanguageInItself();
    void laysWindowsOutAsTheLanguageIsWritten();
    void knowsWhoseTextsAreReviewed();
};

namespace
{

const QString plugin = QStringLiteral("NetInfoRecordUIPlugin");

/// A translation that has a text for everything, but an empty one.
class EmptyTexts : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *, const char *, int) const override
    {
        return QStringLiteral("");
    }
};

/// Counts the language changes that a window is told of.
class Window : public QWidget
{
public:
    int changes = 0;

protected:
    void changeEvent(QEvent *event) override
    {
        changes += event->type() == QEvent::LanguageChange;
        QWidget::changeEvent(event);
    }
};

} // namespace

void TestChange::showsTheTextOfAKnownIdentifier()
{
    QCOMPARE(Change::tr("IDS_LIST_UPLOADED", plugin), QString("Uploaded"));
    QCOMPARE(Change::tr("IDS_STC_SINGLEPACKET_UNIT", plugin), QString("MB"));
}

void TestChange::showsAnUnknownIdentifierAsItself_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("context");
    QTest::newRow("an identifier that nobody has a text for") << "IDS_NO_SUCH_TEXT" << plugin;
    QTest::newRow("another plug-in's context") << "IDS_LIST_UPLOADED"
                                               << "OtherPlugin";
    QTest::newRow("no context") << "IDS_LIST_UPLOADED"
                                << "";
    QTest::newRow("different case") << "ids_list_uploaded" << plugin;
    QTest::newRow("letters beyond ASCII") << QString::fromUtf8("Größe €") << plugin;
    QTest::newRow("no identifier") << "" << plugin;
}

void TestChange::showsAnUnknownIdentifierAsItself()
{
    QFETCH(QString, id);
    QFETCH(QString, context);
    QCOMPARE(Change::tr(id, context), id);
}

void TestChange::showsTheIdentifierWhereATextIsEmpty()
{
    EmptyTexts texts;
    QVERIFY(QCoreApplication::installTranslator(&texts));
    QCOMPARE(Change::tr("IDS_LIST_UPLOADED", plugin), QString("IDS_LIST_UPLOADED"));
}

void TestChange::switchesTheLanguage()
{
    QVERIFY(refhost::setLanguage("de"));
    QCOMPARE(refhost::language(), QString("de"));
    QCOMPARE(Change::tr("IDS_LIST_UPLOADED", plugin), QString("Gesendet"));
    QVERIFY(refhost::setLanguage("en"));
    QCOMPARE(refhost::language(), QString("en"));
    QCOMPARE(Change::tr("IDS_LIST_UPLOADED", plugin), QString("Uploaded"));
}

void TestChange::keepsOneLanguageInMemory()
{
    const auto loaded = [] { return qApp->findChildren<QTranslator *>().size(); };
    const auto before = loaded();
    for (int i = 0; i < 3; ++i) {
        QVERIFY(refhost::setLanguage("de"));
        QVERIFY(refhost::setLanguage("en"));
    }
    QCOMPARE(loaded(), before);
}

void TestChange::tellsWindowsThatTheLanguageHasChanged()
{
    Window window;
    QVERIFY(refhost::setLanguage("de"));
    QTRY_VERIFY(window.changes > 0);
}

void TestChange::keepsTheLanguageWhenAnotherIsUnknown_data()
{
    QTest::addColumn<QString>("unknown");
    QTest::newRow("a language without texts") << "xx";
    QTest::newRow("a region of one with texts") << "de_AT";
    QTest::newRow("no language") << "";
    QTest::newRow("a path") << "../translations/netinforecord_de";
}

void TestChange::keepsTheLanguageWhenAnotherIsUnknown()
{
    QFETCH(QString, unknown);
    QVERIFY(refhost::setLanguage("de"));
    QVERIFY(!refhost::setLanguage(unknown));
    QCOMPARE(refhost::language(), QString("de"));
    QCOMPARE(Change::tr("IDS_LIST_UPLOADED", plugin), QString("Gesendet"));
}

void TestChange::namesEachLanguageInItself()
{
    for (const char *language : {"de", "en"})
        QVERIFY(refhost::availableLanguages().contains(language));
    QCOMPARE(refhost::languageName("de"), QString("Deutsch"));
    QCOMPARE(refhost::languageName("en"), QString("English"));
    QCOMPARE(refhost::languageName("xx"), QString("xx"));
    QCOMPARE(refhost::language(), QString("en"));
}

void TestChange::laysWindowsOutAsTheLanguageIsWritten()
{
    const QWidget window;
    QCOMPARE(window.layoutDirection(), Qt::LeftToRight);
    QVERIFY(refhost::setLanguage("ar"));
    QCOMPARE(window.layoutDirection(), Qt::RightToLeft);
    QVERIFY(refhost::setLanguage("de"));
    QCOMPARE(window.layoutDirection(), Qt::LeftToRight);
}

void TestChange::knowsWhoseTextsAreReviewed()
{
    QVERIFY(refhost::isLanguageReviewed("en"));
    QVERIFY(!refhost::isLanguageReviewed("zh_CN"));
    QVERIFY(!refhost::isLanguageReviewed("xx"));
}

QTEST_MAIN(TestChange)
#include "tst_change.moc"
