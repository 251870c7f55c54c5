// SPDX-License-Identifier: MIT
#include "PlanTest.h"
#include "apps/refdialer/PlanDialog.h"
#include "apps/refdialer/PlanEditor.h"

#include <QDateEdit>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTreeWidget>

using namespace history;
using refdialer::PlanDialog;
using refdialer::PlanEditor;

Q_DECLARE_METATYPE(DataPlan)

class TestPlanDialog : public PlanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void storesANewPlan();
    void storesEachKindOfPeriod();
    void changesNothingThatIsNotTouched_data();
    void changesNothingThatIsNotTouched();
    void storesNothingBeforeOk();
    void namesWhatIsWrongBesideItsField();
    void takesASizeAsTheLocaleWritesIt_data();
    void takesASizeAsTheLocaleWritesIt();
    void writesDaysAsTheRegionDoes();
    void takesPercentagesOfAnyScript();
    void offersWhatTheHistoryKnows();
    void movesWhatWasUsedElsewhereIntoThePeriodOfToday();
    void bringsNothingBackThatWasUsedElsewhereBefore();
    void keepsTheInputWhenTheHistoryCannotBeWritten();
    void makesAPlanAgainThatHasBeenRemovedMeanwhile();
    void asksBeforeItUndoesWhatAnotherProgramChanged();

    void listsThePlans();
    void asksBeforeAPlanIsRemoved();
    void opensTheEditorFromTheKeyboard();

private:
    DataPlan stored(const std::string &name) const;
    std::unique_ptr<PlanEditor> editorOf(const DataPlan &plan);
    bool acceptedBy(PlanEditor &editor) const;

    std::unique_ptr<QWidget> m_window;
};

void TestPlanDialog::init()
{
    PlanTest::init();
    m_window = std::make_unique<QWidget>();
    m_window->setLocale(QLocale("en_GB"));
    m_window->show();
}

void TestPlanDialog::cleanup()
{
    m_window.reset();
    PlanTest::cleanup();
}

DataPlan TestPlanDialog::stored(const std::string &name) const
{
    const auto plans = m_store->plans();
    for (const DataPlan &plan : plans.value()) {
        if (plan.name == name)
            return plan;
    }
    return {};
}

std::unique_ptr<PlanEditor> TestPlanDialog::editorOf(const DataPlan &plan)
{
    readPlans();
    auto editor = std::make_unique<PlanEditor>(*m_watch, plan, m_window.get());
    editor->show();
    m_watch->finish(); // with the names that the history knows
    return editor;
}

/// Whether OK closes it.
bool TestPlanDialog::acceptedBy(PlanEditor &editor) const
{
    press(editor, "OK");
    m_watch->finish();
    return editor.result() == QDialog::Accepted;
}

void TestPlanDialog::storesANewPlan()
{
    const auto editor = editorOf({});
    write(*editor, "Name", " home ");
    write(*editor, "Amount in a period", "1.5");
    choose(*editor, "Where", "At home");
    choose(*editor, "What counts", "Received");
    named<QSpinBox>(*editor, "From day of the month").setValue(31);
    write(*editor, "Used elsewhere in this period", "-2");
    choose(*editor, "Unit of what was used elsewhere", "KB");
    write(*editor, "Warn at percent", "90,70 90");
    QVERIFY(acceptedBy(*editor));
    QCOMPARE(textOf(stored("home")),
             QString("home|everything||home|received|1610612736|monthly 31|-2048 on "
                     "2026-11-19|70,90"));
    QCOMPARE(editor->planKey(), stored("home").key);
}

void TestPlanDialog::storesEachKindOfPeriod()
{
    const auto cycles = editorOf(planCalled("cycles"));
    choose(*cycles, "Kind of period", "Every so many days");
    named<QDateEdit>(*cycles, "First day of a period").setDate(QDate(2026, 11, 2));
    QVERIFY(acceptedBy(*cycles));
    QCOMPARE(ruleText(stored("cycles").period), QString("every 28 from 2026-11-02"));
    const auto once = editorOf(planCalled("once"));
    choose(*once, "Kind of period", "Once (prepaid)");
    QVERIFY(acceptedBy(*once));
    QCOMPARE(ruleText(stored("once").period), QString("2026-11-19 to 2026-12-18"));
}

void TestPlanDialog::changesNothingThatIsNotTouched_data()
{
    QTest::addColumn<DataPlan>("plan");
    QTest::newRow("a plan of which nothing is said") << planCalled("home");
    QTest::newRow("every value of it") << prepaid();
    DataPlan plan = planOf(EveryDays{7, dayNumber("2026-01-05")}, 1664299827);
    plan.covers = DataPlan::Covers::Profile;
    plan.usedElsewhere = UsedElsewhere{1, dayNumber("2026-02-01")};
    plan.warnAtPercent.clear();
    QTest::newRow("no profile, and a correction that is over") << plan;
}

void TestPlanDialog::changesNothingThatIsNotTouched()
{
    QFETCH(DataPlan, plan);
    plan.key = m_store->setPlan(plan).value();
    const auto editor = editorOf(plan);
    QVERIFY2(acceptedBy(*editor), qPrintable(messagesIn(*editor).join('|')));
    QCOMPARE(textOf(stored(plan.name)), textOf(plan));
    QCOMPARE(m_store->plans().value().size(), std::size_t(1));
}

void TestPlanDialog::storesNothingBeforeOk()
{
    DataPlan plan = planCalled("home");
    plan.key = m_store->setPlan(plan).value();
    const auto editor = editorOf(plan);
    write(*editor, "Name", "away");
    press(*editor, "Cancel");
    m_watch->finish();
    QCOMPARE(editor->result(), int(QDialog::Rejected));
    QCOMPARE(textOf(stored("home")), textOf(plan));
}

void TestPlanDialog::namesWhatIsWrongBesideItsField()
{
    QVERIFY(m_store->setPlan(planCalled("home")));
    const auto editor = editorOf({});
    choose(*editor, "Connections that the plan is for", "One SIM");
    write(*editor, "Amount in a period", "a lot");
    choose(*editor, "Kind of period", "Once (prepaid)");
    named<QDateEdit>(*editor, "Last day").setDate(QDate(2026, 11, 18));
    write(*editor, "Used elsewhere in this period", "1");
    write(*editor, "Warn at percent", "80, 1001");
    QVERIFY(!acceptedBy(*editor));
    QCOMPARE(
        messagesIn(*editor),
        (QStringList{"Give the plan a name.", "Write the SIM's number, or the end of it.",
                     "Write a number, such as 10 or 1.5.", "The last day is before the first one.",
                     "Today is in no period of this plan.",
                     "Write percentages from 1 to 1000, such as 80, 100."}));
    auto &name = named<QLineEdit>(*editor, "Name");
    QCOMPARE(editor->focusWidget(), &name);
    QCOMPARE(name.accessibleDescription(), QString("Give the plan a name."));

    write(*editor, "Name", "home");
    choose(*editor, "Connections that the plan is for", "One profile (APN)");
    write(*editor, "Amount in a period", "-1");
    named<QDateEdit>(*editor, "Last day").setDate(QDate(2026, 11, 19));
    write(*editor, "Used elsewhere in this period", "9999999999");
    write(*editor, "Warn at percent", "");
    QVERIFY(!acceptedBy(*editor));
    QCOMPARE(messagesIn(*editor),
             (QStringList{"Another plan has this name already.", "Name the profile.",
                          "There is no plan of less than nothing.",
                          "That is more than can be counted."}));
    QCOMPARE(m_store->plans().value().size(), std::size_t(1));

    write(*editor, "Name", "away");
    choose(*editor, "Connections that the plan is for", "All connections");
    write(*editor, "Amount in a period", "");
    write(*editor, "Used elsewhere in this period", "");
    QVERIFY(acceptedBy(*editor));
    QCOMPARE(messagesIn(*editor), QStringList());
    QCOMPARE(textOf(stored("away")),
             QString("away|everything||both|both|none|2026-11-19 to 2026-11-19|none|"));
}

void TestPlanDialog::takesASizeAsTheLocaleWritesIt_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("outcome");
    const auto row = [](const char *name, const char *locale, const char *shown,
                        const char *written, const char *outcome) {
        QTest::newRow(name) << locale << QString(shown) << QString(written) << QString(outcome);
    };
    row("German", "de_DE", "1,5", " 2,5 ", "2560 MB");
    row("German thousands", "de_DE", "1,5", "1.500",
        "Write the number without separators of thousands, such as 1500 or 1,5.");
    row("German, but an English point", "de_DE", "1,5", "2.5",
        "Write the number without separators of thousands, such as 1500 or 1,5.");
    row("German words", "de_DE", "1,5", "viel", "Write a number, such as 10 or 1,5.");
    row("English thousands", "en_GB", "1.5", "1,500",
        "Write the number without separators of thousands, such as 1500 or 1.5.");
    row("French", "fr_FR", "1,5", "2.5", "2560 MB");
    row("French thousands", "fr_FR", "1,5", "1 500", "Write a number, such as 10 or 1,5.");
    row("Arabic", "ar_EG", "١٫٥", "٢٫٥", "2560 MB");
}

void TestPlanDialog::takesASizeAsTheLocaleWritesIt()
{
    QFETCH(QString, locale);
    QFETCH(QString, shown);
    QFETCH(QString, written);
    m_window->setLocale(QLocale(locale));
    const auto editor = editorOf(planCalled("home", 1536 * megabyte));
    auto &amount = named<QLineEdit>(*editor, "Amount in a period");
    QCOMPARE(amount.text(), shown);
    amount.setText(written);
    const QString outcome = acceptedBy(*editor)
                                ? QString("%1 MB").arg(*stored("home").amount / megabyte)
                                : messagesIn(*editor).join('|');
    QTEST(outcome, "outcome");
}

void TestPlanDialog::writesDaysAsTheRegionDoes()
{
    m_window->setLocale(QLocale("de_DE"));
    const auto editor = editorOf(planCalled("home"));
    QCOMPARE(named<QDateEdit>(*editor, "First day").text(), QString("19.11.2026"));
    editor->setLocale(QLocale("en_GB"));
    QCOMPARE(named<QDateEdit>(*editor, "First day").text(), QString("19/11/2026"));
}

void TestPlanDialog::takesPercentagesOfAnyScript()
{
    m_window->setLocale(QLocale("ar_EG"));
    const auto editor = editorOf(planCalled("home"));
    auto &warnings = named<QLineEdit>(*editor, "Warn at percent");
    QCOMPARE(warnings.text(), QString("٨٠, ١٠٠"));
    warnings.setText("٩٠، 70，1000、 ٧٠");
    QVERIFY(acceptedBy(*editor));
    QVERIFY(textOf(stored("home")).endsWith("|70,90,1000"));
}

void TestPlanDialog::offersWhatTheHistoryKnows()
{
    Connection first = connection("internet", 100, 200);
    first.sim = "8949000000000001234";
    QVERIFY(m_store->add(first));
    QVERIFY(m_store->add(connection("ims", 100, 200)));
    OpenConnection open;
    open.bootId = "boot";
    open.profile = "corporate";
    open.sim = "77";
    QVERIFY(m_store->begin(open));
    const auto editor = editorOf(planCalled("home"));
    const auto choices = [&editor](const char *name) {
        const auto &box = named<QComboBox>(*editor, name);
        QStringList texts;
        for (int i = 0; i < box.count(); ++i)
            texts.append(box.itemText(i));
        return texts;
    };
    QCOMPARE(choices("Profile (APN)"), (QStringList{"corporate", "ims", "internet"}));
    QCOMPARE(choices("Number of the SIM, or its end"),
             (QStringList{"Without a SIM number", "77", QString::fromUtf8("…1234")}));
    choose(*editor, "Connections that the plan is for", "One SIM");
    choose(*editor, "Number of the SIM, or its end", QString::fromUtf8("…1234"));
    QVERIFY(acceptedBy(*editor));
    QCOMPARE(stored("home").covered, std::string("8949000000000001234"));

    const auto other = editorOf(planCalled("other"));
    choose(*other, "Connections that the plan is for", "One profile (APN)");
    named<QComboBox>(*other, "Profile (APN)").setEditText("new.apn");
    QVERIFY(acceptedBy(*other));
    QCOMPARE(stored("other").covered, std::string("new.apn"));
}

void TestPlanDialog::movesWhatWasUsedElsewhereIntoThePeriodOfToday()
{
    DataPlan plan = planCalled("home");
    plan.usedElsewhere = UsedElsewhere{gigabyte, dayNumber("2026-11-05")};
    plan.key = m_store->setPlan(plan).value();
    const auto same = editorOf(plan);
    QCOMPARE(named<QLineEdit>(*same, "Used elsewhere in this period").text(), QString("1"));
    QVERIFY(acceptedBy(*same));
    QCOMPARE(stored("home").usedElsewhere->day, dayNumber("2026-11-05"));
    const auto later = editorOf(plan);
    named<QSpinBox>(*later, "From day of the month").setValue(10);
    QVERIFY(acceptedBy(*later));
    QCOMPARE(stored("home").usedElsewhere->day, dayNumber("2026-11-19"));
    QCOMPARE(stored("home").usedElsewhere->bytes, gigabyte);
}

void TestPlanDialog::bringsNothingBackThatWasUsedElsewhereBefore()
{
    DataPlan plan = planCalled("home");
    plan.usedElsewhere = UsedElsewhere{gigabyte, dayNumber("2026-10-25")};
    plan.key = m_store->setPlan(plan).value();
    const auto editor = editorOf(plan);
    QCOMPARE(named<QLineEdit>(*editor, "Used elsewhere in this period").text(), QString());
    named<QSpinBox>(*editor, "From day of the month").setValue(20);
    QVERIFY(acceptedBy(*editor));
    QVERIFY(!stored("home").usedElsewhere);
}

void TestPlanDialog::keepsTheInputWhenTheHistoryCannotBeWritten()
{
    const auto editor = editorOf(planCalled("home"));
    write(*editor, "Amount in a period", "10");
    m_store.reset();
    QVERIFY(QFile::rename(QString::fromStdString(m_path), m_folder->filePath("away.db")));
    QVERIFY(QDir(m_folder->path()).mkdir("connections.db"));
    QVERIFY(!acceptedBy(*editor));
    QCOMPARE(messagesIn(*editor).size(), 1);
    QVERIFY2(messagesIn(*editor).first().contains(QString::fromStdString(m_path)),
             qPrintable(messagesIn(*editor).first()));
    QVERIFY(editor->isVisible());
    QVERIFY(named<QLineEdit>(*editor, "Amount in a period").isEnabled());
    QVERIFY(QDir(m_folder->path()).rmdir("connections.db"));
    QVERIFY(QFile::rename(m_folder->filePath("away.db"), QString::fromStdString(m_path)));
    QVERIFY(acceptedBy(*editor));
    m_store = std::make_unique<Store>(storeWith(m_path, {}));
    QCOMPARE(*stored("home").amount, 10 * gigabyte);
}

void TestPlanDialog::makesAPlanAgainThatHasBeenRemovedMeanwhile()
{
    DataPlan plan = planCalled("home");
    plan.key = m_store->setPlan(plan).value();
    const auto editor = editorOf(plan);
    write(*editor, "Amount in a period", "10");
    QVERIFY(m_store->removePlan("home").value());
    QVERIFY(!acceptedBy(*editor));
    QVERIFY(messagesIn(*editor).first().endsWith("another program has removed it, make it again."));
    QVERIFY(acceptedBy(*editor));
    QCOMPARE(*stored("home").amount, 10 * gigabyte);
}

void TestPlanDialog::asksBeforeItUndoesWhatAnotherProgramChanged()
{
    DataPlan plan = planCalled("home");
    plan.key = m_store->setPlan(plan).value();
    const auto editor = editorOf(plan);
    write(*editor, "Amount in a period", "10");
    for (const int percent : {70, 90}) {
        plan.warnAtPercent = {percent};
        QVERIFY(m_store->setPlan(plan));
        QVERIFY(!acceptedBy(*editor));
        QVERIFY(messagesIn(*editor).value(0).startsWith("Another program has changed this plan"));
        QCOMPARE(textOf(stored("home")), textOf(plan));
        QCOMPARE(named<QLineEdit>(*editor, "Amount in a period").text(), QString("10"));
    }
    QVERIFY(acceptedBy(*editor));
    QCOMPARE(textOf(stored("home")), textOf(planCalled("home", 10 * gigabyte)));
}

void TestPlanDialog::listsThePlans()
{
    readPlans();
    PlanDialog dialog(*m_watch, m_window.get());
    dialog.show();
    QVERIFY(messagesIn(dialog).first().startsWith("There is no data plan yet."));
    QVERIFY(m_store->setPlan(planOf(EveryDays{28, dayNumber("2026-11-02")}, 10 * gigabyte)));
    QVERIFY(m_store->setPlan(planCalled("home")));
    readPlans();
    QCOMPARE(messagesIn(dialog), QStringList());
    const auto &list = *dialog.findChild<QTreeWidget *>();
    const auto row = [&list](int index) {
        const QTreeWidgetItem &item = *list.topLevelItem(index);
        return QStringList{item.text(0), item.text(1), item.text(2)}.join('|');
    };
    QCOMPARE(list.topLevelItemCount(), 2);
    QCOMPARE(row(0), QString("home||Monthly from day 1"));
    QCOMPARE(row(1), QString("plan|10.00 GB|Every 28 days from 02/11/2026"));
}

void TestPlanDialog::asksBeforeAPlanIsRemoved()
{
    for (const char *const name : {"a", "b"})
        QVERIFY(m_store->setPlan(planCalled(name)));
    readPlans();
    PlanDialog dialog(*m_watch, m_window.get());
    dialog.show();
    auto &list = *dialog.findChild<QTreeWidget *>();
    list.setCurrentItem(list.topLevelItem(1));
    const auto answer = [&dialog](const QString &text) {
        press(dialog, QStringLiteral("Remove…"));
        auto *const box = dialog.findChild<QMessageBox *>();
        QCOMPARE(box->text(), QString("Remove the data plan \"b\"?"));
        press(*box, text);
        QTRY_VERIFY(!dialog.findChild<QMessageBox *>());
    };
    answer("Cancel");
    m_watch->finish();
    QCOMPARE(stored("b").name, std::string("b"));
    answer("Remove");
    QTRY_COMPARE(list.topLevelItemCount(), 1);
    QCOMPARE(list.topLevelItem(0)->text(0), QString("a"));
    QCOMPARE(m_store->plans().value().size(), std::size_t(1));
}

void TestPlanDialog::opensTheEditorFromTheKeyboard()
{
    QVERIFY(m_store->setPlan(planCalled("home")));
    readPlans();
    PlanDialog dialog(*m_watch, m_window.get());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(dialog.findChild<QTreeWidget *>(), Qt::Key_Return);
    auto *const editor = dialog.findChild<PlanEditor *>();
    QVERIFY(editor);
    QCOMPARE(named<QLineEdit>(*editor, "Name").text(), QString("home"));
    QVERIFY(dialog.isVisible());
    QTest::keyClick(editor, Qt::Key_Escape);
    QTRY_VERIFY(!dialog.findChild<PlanEditor *>());
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    dialog.findChild<QTreeWidget *>()->setFocus();
    QTest::keyClick(dialog.findChild<QTreeWidget *>(), Qt::Key_Delete);
    QVERIFY(dialog.findChild<QMessageBox *>());
}

QTEST_MAIN(TestPlanDialog)

#include "tst_plandialog.moc"
