// SPDX-License-Identifier: MIT
#include "LocalZone.h"
#include "PlanSamples.h"
#include "StoreSamples.h"
#include "UsagePageCase.h"
#include "apps/refdialer/UsageText.h"
#include "refhost/libcore/Host.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QMimeData>
#include <QTableView>
#include <QTest>

using refdialer::UsageChart;
using refdialer::UsagePage;

/// The page as its user sees, hears and drives it.
class UsagePageTest : public UsagePageCase
{
    Q_OBJECT

private slots:
    void showsThisMonth();
    void goesBackAndForthByButtons();
    void goesBackAndForthByKeys();
    void showsTheMonthsOfTheYear();
    void showsThePlanThatIsChosen();
    void tellsTheFiguresUnderTheMouse();
    void tellsTheFiguresUnderTheKeyboard();
    void readsEachBarOut();
    void showsTheSameAsATable();
    void copiesText();
    void copiesAPicture();
    void keepsUpWithARunningConnection();
    void followsTheZone();
    void saysThatThereIsNothingYet();
    void saysWhyThereAreNoFigures_data();
    void saysWhyThereAreNoFigures();
    void speaksTheLanguageOfTheProgram();
    void writesMonthsAsDatesDo();

    void hasRoomForManyBars_data();
    void hasRoomForManyBars();
    void drawsInTheColoursOfThePalette_data();
    void drawsInTheColoursOfThePalette();
    void standsTheOtherWayRoundFromRightToLeft();
};

void UsagePageTest::showsThisMonth()
{
    open();
    QCOMPARE(int(chart().bars().size()), today().daysInMonth());
    QVERIFY(shows(monthText(today())));
    QVERIFY(shows("All connections: received 3.00 MB at home and 2.00 MB roaming, sent 1.00 MB at "
                  "home and 0.00 KB roaming"));
    QVERIFY(!named("Next").isEnabled());
}

void UsagePageTest::goesBackAndForthByButtons()
{
    open();
    named("Previous").click();
    QTRY_VERIFY(shows(monthText(monthBefore())));
    QVERIFY(shows("All connections: received 7.00 MB, sent 5.00 MB"));
    QVERIFY(!named("Previous").isEnabled());
    named("Next").click();
    QTRY_VERIFY(shows(monthText(today())));
    QVERIFY(!named("Next").isEnabled());
}

void UsagePageTest::goesBackAndForthByKeys()
{
    open();
    press(Qt::Key_Left, Qt::AltModifier);
    QTRY_VERIFY(shows(monthText(monthBefore())));
    press(Qt::Key_Right, Qt::AltModifier);
    QTRY_VERIFY(shows(monthText(today())));
    m_page->setLayoutDirection(Qt::RightToLeft);
    press(Qt::Key_Right, Qt::AltModifier);
    QTRY_VERIFY(shows(monthText(monthBefore())));
}

void UsagePageTest::showsTheMonthsOfTheYear()
{
    open();
    auto &units = *m_page->findChildren<QComboBox *>().at(1);
    units.setFocus();
    press(Qt::Key_Down);
    QCOMPARE(units.currentText(), QString("By month"));
    QTRY_COMPARE(int(chart().bars().size()), 12);
    QVERIFY(shows(QString::number(today().year())));
    const std::size_t month = std::size_t(today().month() - 1);
    QCOMPARE(chart().bars()[month].bytes[usage::ReceivedRoaming], 2 * megabyte);
}

void UsagePageTest::showsThePlanThatIsChosen()
{
    history::DataPlan plan;
    plan.name = "abroad";
    plan.network = history::DataPlan::Network::Roaming;
    plan.period = history::EveryDays{7, today().addDays(-3).toJulianDay()};
    auto store = history::Store::openOrCreate(m_path);
    QVERIFY(store.value().setPlan(plan));
    open();
    QCOMPARE(int(chart().bars().size()), 7);
    QVERIFY(shows("Plan: abroad: received 0.00 KB at home and 2.00 MB roaming, sent 0.00 KB at "
                  "home and 0.00 KB roaming"));
    auto &subjects = *m_page->findChildren<QComboBox *>().at(0);
    QCOMPARE(subjects.currentText(), QString("Plan: abroad"));
    subjects.setFocus();
    press(Qt::Key_Down);
    QCOMPARE(subjects.currentText(), QString("Profile: internet"));
    QTRY_COMPARE(int(chart().bars().size()), today().daysInMonth());
}

void UsagePageTest::tellsTheFiguresUnderTheMouse()
{
    open();
    const int bar = today().day() - 1;
    QTest::mouseMove(&chart(), chart().placeOf(bar).center());
    const QString text = longText(today()) + ": received 3.00 MB at home and 2.00 MB roaming, "
                                             "sent 1.00 MB at home and 0.00 KB roaming";
    QTRY_VERIFY(shows(text));
    QTest::mouseMove(&chart(), QPoint(1, 1));
    QTRY_VERIFY(!shows(text));
    QTest::mouseClick(&chart(), Qt::LeftButton, {}, chart().placeOf(bar).center());
    QCOMPARE(chart().current(), bar);
    QTest::mouseMove(&chart(), QPoint(2, 2));
    QTRY_VERIFY(shows(text));
}

void UsagePageTest::tellsTheFiguresUnderTheKeyboard()
{
    open();
    const int last = int(chart().bars().size()) - 1;
    const QDate first(today().year(), today().month(), 1);
    const auto isCurrent = [&](int bar) {
        return chart().current() == bar && shows(chart().textOf(bar));
    };
    chart().setFocus();
    QVERIFY(isCurrent(today().day() - 1));
    press(Qt::Key_Home);
    QVERIFY(isCurrent(0));
    press(Qt::Key_Left);
    QVERIFY(isCurrent(0));
    press(Qt::Key_Right);
    QVERIFY(isCurrent(1));
    QVERIFY(chart().textOf(1).startsWith(longText(first.addDays(1)) + ": "));
    press(Qt::Key_End);
    press(Qt::Key_Right);
    QVERIFY(isCurrent(last));
    m_page->setLayoutDirection(Qt::RightToLeft);
    press(Qt::Key_Right);
    QVERIFY(isCurrent(last - 1));
    press(Qt::Key_Left);
    QVERIFY(isCurrent(last));
    // The one with the keyboard looks otherwise than without.
    const QImage focused = chart().grab().toImage();
    m_page->findChild<QComboBox *>()->setFocus();
    QVERIFY(chart().grab().toImage() != focused);
}

void UsagePageTest::readsEachBarOut()
{
    open();
    const auto *const read = QAccessible::queryAccessibleInterface(&chart());
    QVERIFY(read);
    QCOMPARE(read->text(QAccessible::Name), QString("Usage"));
    QCOMPARE(read->childCount(), today().daysInMonth());
    const int bar = today().day() - 1;
    QAccessibleInterface *const child = read->child(bar);
    QCOMPARE(child->text(QAccessible::Name), chart().textOf(bar));
    QVERIFY(child->text(QAccessible::Name).contains("3.00 MB"));
    QCOMPARE(read->indexOfChild(child), bar);
    QCOMPARE(child->parent()->object(), &chart());
    QCOMPARE(read->childAt(child->rect().center().x(), child->rect().center().y()), child);
    QVERIFY(!child->state().focused);

    chart().setFocus();
    QVERIFY(child->state().focused);
    QCOMPARE(read->focusChild(), child);
    QCOMPARE(read->text(QAccessible::Value), chart().textOf(bar));
    press(Qt::Key_Home);
    QCOMPARE(read->focusChild(), read->child(0));
    // Those of longer months are none in a shorter time.
    QAccessibleInterface *const last = read->child(today().daysInMonth() - 1);
    chart().setBars(barsOf(2), usage::BarUnit::Day, {});
    QVERIFY(!last->isValid());
    QVERIFY(child->isValid() == (bar < 2));
}

void UsagePageTest::showsTheSameAsATable()
{
    open();
    const int bar = today().day() - 1;
    chart().setCurrent(bar);
    named<QCheckBox>("As table").click();
    const auto &table = *m_page->findChild<QTableView *>();
    QVERIFY(table.isVisible() && !chart().isVisible());
    QCOMPARE(table.currentIndex().row(), bar);
    QStringList row;
    for (int column = 0; column < table.model()->columnCount(); ++column)
        row.append(table.model()->index(bar, column).data().toString());
    QCOMPARE(row, QStringList(
                      {longText(today()), "3.00 MB", "1.00 MB", "2.00 MB", "0.00 KB", "6.00 MB"}));
    press(Qt::Key_Tab); // off the box, wherever that leads
    m_page->findChild<QTableView *>()->setFocus();
    press(bar == 0 ? Qt::Key_Down : Qt::Key_Up);
    named<QCheckBox>("As table").click();
    QCOMPARE(chart().current(), bar == 0 ? 1 : bar - 1);
}

void UsagePageTest::copiesText()
{
    open();
    named("Copy text").click();
    const QMimeData &copied = *QApplication::clipboard()->mimeData();
    const QStringList lines = copied.text().split('\n');
    QCOMPARE(lines.first(),
             QString("Day\tReceived at home\tSent at home\tReceived roaming\tSent roaming\tTotal"));
    QCOMPARE(lines.at(today().day()),
             today().toString(Qt::ISODate) + "\t3145728\t1048576\t2097152\t0\t6291456");
    QVERIFY(!copied.hasImage());
}

void UsagePageTest::copiesAPicture()
{
    open();
    // What is said of a bar below may be higher than what is said without one.
    chart().setFixedHeight(chart().height());
    named("Copy picture").click();
    const QMimeData &copied = *QApplication::clipboard()->mimeData();
    QVERIFY(!copied.hasText());
    const auto picture = copied.imageData().value<QImage>();
    QCOMPARE(picture.width(), int(chart().width() * chart().devicePixelRatioF()));
    QVERIFY(picture.height() > chart().height());
    // The keyboard's place is none of the picture's; Ctrl+C copies both.
    chart().setFocus();
    press(Qt::Key_C, Qt::ControlModifier);
    const QMimeData &both = *QApplication::clipboard()->mimeData();
    QVERIFY(both.text().startsWith("Day\t"));
    QCOMPARE(both.imageData().value<QImage>(), picture);
}

void UsagePageTest::keepsUpWithARunningConnection()
{
    open();
    chart().setFocus();
    const int bar = chart().current();
    auto store = history::Store::openOrCreate(m_path);
    history::OpenConnection running;
    running.bootId = "boot";
    running.interfaceIndex = 3;
    running.startUtc = running.updatedUtc = noonOf(today());
    const auto move = [&](std::int64_t megabytes) {
        running.downloadedBytes = megabytes * megabyte;
        running.hours = {{running.startUtc, false, 0, running.downloadedBytes}};
    };
    const auto received = [&] {
        return chart().bars()[std::size_t(bar)].bytes[usage::ReceivedAtHome];
    };
    move(10);
    const auto begun = store.value().begin(running);
    QVERIFY(begun);
    QTRY_COMPARE(received(), 13 * megabyte);
    running.key = begun.value().key;
    move(20);
    QVERIFY(store.value().checkpoint(running));
    QTRY_COMPARE(received(), 23 * megabyte);
    QCOMPARE(chart().current(), bar);
    QVERIFY(shows(chart().textOf(bar)));
}

/// Zones so near to each other that it is the same day in both nearly always.
void UsagePageTest::followsTheZone()
{
    const LocalZone before("Asia/Kolkata");
    const QDate day(today().year(), today().month(), 15);
    const std::int64_t lastHour = utcOf(day.toString(Qt::ISODate) + "T18:00:00Z");
    history::Connection moved = connection("internet", lastHour, lastHour + 60);
    moved.uploadedBytes = megabyte;
    moved.hours = {{lastHour, true, megabyte, 0}};
    storeWith(m_path, {moved});
    open();
    const auto sentRoamingOn = [this](int dayOfMonth) {
        return chart().bars()[std::size_t(dayOfMonth) - 1].bytes[usage::SentRoaming];
    };
    QCOMPARE(sentRoamingOn(15), megabyte);
    const LocalZone after("Asia/Dhaka");
    QTRY_COMPARE(sentRoamingOn(16), megabyte);
    QCOMPARE(sentRoamingOn(15), std::int64_t(0));
}

void UsagePageTest::saysThatThereIsNothingYet()
{
    m_path = m_folder->filePath("empty.db").toStdString();
    open();
    const QImage nothingEver = chart().grab().toImage();
    QVERIFY(!QFile::exists(QString::fromStdString(m_path)));
    QVERIFY(!named("Previous").isEnabled() && !named("Next").isEnabled());
    // A history that has something in another month says something else.
    storeWith(m_path, {movedOn(monthBefore(), 1, 1)});
    QTRY_VERIFY(named("Previous").isEnabled());
    QVERIFY(chart().grab().toImage() != nothingEver);
    QVERIFY(shows("All connections: nothing"));
}

void UsagePageTest::saysWhyThereAreNoFigures_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("reason");
    QTest::newRow("English") << "en"
                             << "is not a connection history but some other file; it was left as "
                                "it is, move it away or name another file.";
    QTest::newRow("German") << "de"
                            << "kein Verbindungsverlauf, sondern eine andere Datei.";
    QTest::newRow("Arabic") << "ar" << QStringLiteral("ليس سجل اتصالات بل ملف آخر.");
}

void UsagePageTest::saysWhyThereAreNoFigures()
{
    QFETCH(QString, language);
    QFETCH(QString, reason);
    QVERIFY(refhost::setLanguage(language));
    writeFile(m_folder->filePath("text.db"), "This is no history.");
    m_path = m_folder->filePath("text.db").toStdString();
    m_page = std::make_unique<UsagePage>(m_path);
    m_page->show();
    QTRY_COMPARE(int(shownTexts().filter(reason).size()), 1);
    QVERIFY(shownTexts().filter(reason).first().contains(QString::fromStdString(m_path)));
    // It is there as soon as it can be read.
    QVERIFY(QFile::remove(QString::fromStdString(m_path)));
    storeWith(m_path, {movedOn(today(), megabyte, megabyte)});
    QTRY_VERIFY(!shownTexts().filter("1.00 MB").isEmpty());
    QVERIFY(shownTexts().filter(reason).isEmpty());
}

void UsagePageTest::speaksTheLanguageOfTheProgram()
{
    open();
    QVERIFY(refhost::setLanguage("de"));
    m_page->setLocale(QLocale(QLocale::German));
    QTRY_VERIFY(shows("Alle Verbindungen: im Heimatnetz 3.00 MB und im Roaming 2.00 MB "
                      "empfangen, im Heimatnetz 1.00 MB und im Roaming 0.00 KB gesendet"));
    chart().setCurrent(0);
    const QDate first(today().year(), today().month(), 1);
    QVERIFY(chart().textOf(0).startsWith(
        QLocale(QLocale::German).toString(first, QLocale::LongFormat)));
}

void UsagePageTest::writesMonthsAsDatesDo()
{
    const QDate november(2026, 11, 1);
    const auto textIn = [&november](const char *language) {
        return refhost::setLanguage(language)
                   ? refdialer::UsageText::monthName(november, QLocale(language))
                   : QString();
    };
    QCOMPARE(textIn("zh_CN"), QStringLiteral("2026年11月"));
    QCOMPARE(textIn("ru"), QStringLiteral("ноябрь 2026"));
    QCOMPARE(textIn("de"), QString("November 2026"));
}

void UsagePageTest::hasRoomForManyBars_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("narrower than the bars are many") << 300;
    QTest::newRow("as usual") << 700;
    QTest::newRow("wide") << 3000;
}

void UsagePageTest::hasRoomForManyBars()
{
    QFETCH(int, width);
    constexpr int days = 366;
    UsageChart chart;
    chart.resize(width, 300);
    chart.setBars(barsOf(days), usage::BarUnit::Day, {});
    chart.show();
    chart.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&chart));
    chart.setFocus();
    QTest::keyClick(&chart, Qt::Key_Home);
    for (int bar = 0; bar < days; ++bar) {
        QCOMPARE(chart.current(), bar);
        QVERIFY(chart.rect().contains(chart.placeOf(bar)));
        QVERIFY(chart.placeOf(bar).width() > 0);
        QTest::keyClick(&chart, Qt::Key_Right);
    }
    QTest::mouseClick(&chart, Qt::LeftButton, {}, chart.placeOf(days - 1).center());
    QCOMPARE(chart.current(), days - 1);
    QVERIFY(!chart.grab().toImage().isNull());
}

void UsagePageTest::drawsInTheColoursOfThePalette_data()
{
    QTest::addColumn<QColor>("base");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("highlight");
    QTest::newRow("light") << QColor("#ffffff") << QColor("#000000") << QColor("#308cc6");
    QTest::newRow("dark") << QColor("#202020") << QColor("#eeeeee") << QColor("#308cc6");
    QTest::newRow("high contrast") << QColor("#000000") << QColor("#ffff00") << QColor("#00ffff");
}

void UsagePageTest::drawsInTheColoursOfThePalette()
{
    QFETCH(QColor, base);
    QFETCH(QColor, text);
    QFETCH(QColor, highlight);
    const std::int64_t half = 512 * megabyte;
    UsageChart chart;
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Highlight, highlight);
    chart.setPalette(palette);
    chart.resize(600, 400);
    // Each part alone fills a bar.
    std::vector<usage::UsageBar> bars;
    for (std::size_t part = 0; part < usage::usagePartCount; ++part) {
        bars.push_back({QDate(2026, 1, 1 + int(part)), {}});
        bars.back().bytes[part] = half;
    }
    chart.setBars(bars, usage::BarUnit::Day, {});
    const QImage image = chart.grab().toImage();
    QCOMPARE(image.pixelColor(chart.rect().bottomLeft()), base);
    QCOMPARE(image.pixelColor(chart.placeOf(0).center()), highlight);
    QSet<QByteArray> looks;
    for (int part = 0; part < usage::usagePartCount; ++part) {
        QRect inside(QPoint(), QSize(16, 16));
        inside.moveCenter(chart.placeOf(part).center());
        // Whoever sees no colours tells them apart too.
        const QImage look = image.copy(inside).convertToFormat(QImage::Format_Grayscale8);
        looks.insert(
            QByteArray(reinterpret_cast<const char *>(look.constBits()), int(look.sizeInBytes())));
    }
    QCOMPARE(int(looks.size()), usage::usagePartCount);
}

void UsagePageTest::standsTheOtherWayRoundFromRightToLeft()
{
    UsageChart chart;
    chart.resize(600, 400);
    chart.setBars(barsOf(30), usage::BarUnit::Day, {});
    QVERIFY(chart.placeOf(0).right() < chart.placeOf(29).left());
    const int free = chart.width() - chart.placeOf(29).right();
    chart.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(chart.placeOf(0).left() > chart.placeOf(29).right());
    QVERIFY(chart.placeOf(29).left() <= free && chart.width() - chart.placeOf(0).right() > free);
}

QTEST_MAIN(UsagePageTest)

#include "tst_usagepage.moc"
