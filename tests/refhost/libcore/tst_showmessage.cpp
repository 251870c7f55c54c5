// SPDX-License-Identifier: MIT
#include "BoxInput.h"
#include "CommonUtils.h"
#include "refhost/libcore/Host.h"

#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

class TestShowMessage : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void isConfirmedByTheFirstButtonOnly_data();
    void isConfirmedByTheFirstButtonOnly();
    void translatesTheButtons();
    void showsAnUnknownButtonAsItself();
    void makesNoButtonOfAnEmptyIdentifier();
    void pressesTheHarmlessButtonByDefault();
    void showsTitleTextAndIcon();
    void showsMarkupAsItIs();
    void isModalOverItsParent();
    void handsTheBoxOutWhileItIsOpen();
    void isAnOpenQuestionUntilItReturns();
    void survivesTheEndOfItsParent();

private:
    using Step = std::function<void(QMessageBox &)>;
    int ask(const Step &step, const QStringList &buttons = {"IDS_OK", "IDS_CANCEL", ""});

    QWidget *m_parent = nullptr;
    QDialog **m_dialog = nullptr;
    QString m_text = "Text";
    bool m_wasOpen = false;
};

namespace
{

QStringList buttonTexts(const QMessageBox &box)
{
    QStringList texts;
    for (const QAbstractButton *const button : box.buttons())
        texts.append(button->text());
    texts.sort();
    return texts;
}

void closeBox(QMessageBox &box)
{
    box.close();
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(QMessageBox &)>)

void TestShowMessage::init()
{
    QVERIFY(refhost::setLanguage("en"));
    m_parent = nullptr;
    m_dialog = nullptr;
    m_text = "Text";
    m_wasOpen = false;
}

/// Asks, does the step on the open box and, if that has not, closes it.
int TestShowMessage::ask(const Step &step, const QStringList &buttons)
{
    QTimer::singleShot(0, this, [this, &step] {
        const QPointer<QMessageBox> box = openBox();
        m_wasOpen = box;
        if (!box)
            return;
        step(*box);
        if (box)
            box->close();
    });
    return CommonUtils::ShowMessage(
        QMessageBox::Question, m_parent, "Title", m_text, buttons[0], buttons[1], buttons[2], true,
        Qt::WindowCloseButtonHint | Qt::WindowStaysOnTopHint, m_dialog, QString(), true);
}

void TestShowMessage::isConfirmedByTheFirstButtonOnly_data()
{
    const QStringList two{"IDS_OK", "IDS_CANCEL", ""};
    const QStringList three{"IDS_OK", "IDS_CANCEL", "Third"};
    const QStringList one{"IDS_OK", "", ""};
    const QStringList none{"", "", ""};
    QTest::addColumn<QStringList>("buttons");
    QTest::addColumn<Step>("step");
    QTest::addColumn<bool>("isConfirmed");
    const auto click = [](const char *text) {
        return Step([text](QMessageBox &box) { clickOn(box, text); });
    };
    const auto press = [](const QList<Qt::Key> &keys) {
        return Step([keys](QMessageBox &box) { pressKeys(box, keys); });
    };
    QTest::newRow("a click on the first of two") << two << click("OK") << true;
    QTest::newRow("a click on the second of two") << two << click("Cancel") << false;
    QTest::newRow("a click on the third") << three << click("Third") << false;
    QTest::newRow("Enter presses the second of two") << two << press({Qt::Key_Return}) << false;
    QTest::newRow("Enter after moving to the first")
        << two << press({Qt::Key_Tab, Qt::Key_Return}) << true;
    QTest::newRow("the number block's Enter") << two << press({Qt::Key_Enter}) << false;
    QTest::newRow("Space presses the second of two") << two << press({Qt::Key_Space}) << false;
    QTest::newRow("Space after moving to the first")
        << two << press({Qt::Key_Tab, Qt::Key_Space}) << true;
    QTest::newRow("Escape after moving to the first")
        << two << press({Qt::Key_Tab, Qt::Key_Escape}) << false;
    QTest::newRow("Space with one button") << one << press({Qt::Key_Space}) << true;
    QTest::newRow("Escape with two buttons") << two << press({Qt::Key_Escape}) << false;
    QTest::newRow("Escape with three buttons") << three << press({Qt::Key_Escape}) << false;
    QTest::newRow("closing with two buttons") << two << Step(closeBox) << false;
    QTest::newRow("closing with three buttons") << three << Step(closeBox) << false;
    QTest::newRow("a click on the only button") << one << click("OK") << true;
    QTest::newRow("Enter with one button") << one << press({Qt::Key_Return}) << true;
    QTest::newRow("Escape with one button") << one << press({Qt::Key_Escape}) << false;
    QTest::newRow("closing with one button") << one << Step(closeBox) << false;
    QTest::newRow("closing without buttons") << none << Step(closeBox) << false;
}

void TestShowMessage::isConfirmedByTheFirstButtonOnly()
{
    QFETCH(QStringList, buttons);
    QFETCH(Step, step);
    QFETCH(bool, isConfirmed);
    const int result = ask(step, buttons);
    QVERIFY(m_wasOpen);
    QCOMPARE(result == 1024, isConfirmed);
}

void TestShowMessage::translatesTheButtons()
{
    QVERIFY(refhost::setLanguage("de"));
    QStringList texts;
    ask([&texts](QMessageBox &box) { texts = buttonTexts(box); });
    QCOMPARE(texts, QStringList({"Abbrechen", "OK"}));
}

void TestShowMessage::showsAnUnknownButtonAsItself()
{
    QStringList texts;
    ask([&texts](QMessageBox &box) { texts = buttonTexts(box); }, {"IDS_NO_SUCH_TEXT", "", ""});
    QCOMPARE(texts, QStringList({"IDS_NO_SUCH_TEXT"}));
}

void TestShowMessage::makesNoButtonOfAnEmptyIdentifier()
{
    QStringList texts;
    ask([&texts](QMessageBox &box) { texts = buttonTexts(box); }, {"IDS_OK", "", "IDS_CANCEL"});
    QCOMPARE(texts, QStringList({"Cancel", "OK"}));
}

void TestShowMessage::pressesTheHarmlessButtonByDefault()
{
    QString defaultText;
    ask([&defaultText](QMessageBox &box) { defaultText = box.defaultButton()->text(); });
    QCOMPARE(defaultText, QString("Cancel"));
}

void TestShowMessage::showsTitleTextAndIcon()
{
    m_text = "Delete the selected connections?";
    ask([](QMessageBox &box) {
        QCOMPARE(box.windowTitle(), QString("Title"));
        QCOMPARE(box.text(), QString("Delete the selected connections?"));
        QCOMPARE(box.icon(), QMessageBox::Question);
        QVERIFY(box.windowFlags() & Qt::WindowCloseButtonHint);
        QVERIFY(box.windowFlags() & Qt::WindowStaysOnTopHint);
        QCOMPARE(box.windowType(), Qt::Dialog);
    });
    QVERIFY(m_wasOpen);
}

void TestShowMessage::showsMarkupAsItIs()
{
    m_text = "<b>internet.example</b>";
    ask([](QMessageBox &box) { QCOMPARE(box.textFormat(), Qt::PlainText); });
    QVERIFY(m_wasOpen);
}

void TestShowMessage::isModalOverItsParent()
{
    QWidget parent;
    m_parent = &parent;
    ask([&parent](QMessageBox &box) {
        QCOMPARE(box.parentWidget(), &parent);
        QVERIFY(box.isModal());
    });
    QVERIFY(m_wasOpen);
}

void TestShowMessage::handsTheBoxOutWhileItIsOpen()
{
    QDialog *dialog = nullptr;
    m_dialog = &dialog;
    ask([&dialog](QMessageBox &box) { QCOMPARE(dialog, &box); });
    QVERIFY(m_wasOpen);
    QCOMPARE(dialog, nullptr);
}

void TestShowMessage::isAnOpenQuestionUntilItReturns()
{
    QVERIFY(!refhost::isQuestionOpen());
    ask([this](QMessageBox &) {
        ask([](QMessageBox &) { QVERIFY(refhost::isQuestionOpen()); });
        QVERIFY(refhost::isQuestionOpen());
    });
    QVERIFY(m_wasOpen);
    QVERIFY(!refhost::isQuestionOpen());
}

void TestShowMessage::survivesTheEndOfItsParent()
{
    m_parent = new QWidget;
    const int result = ask([this](QMessageBox &) { delete m_parent; });
    QVERIFY(m_wasOpen);
    QVERIFY(result != 1024);
}

QTEST_MAIN(TestShowMessage)
#include "tst_showmessage.moc"
