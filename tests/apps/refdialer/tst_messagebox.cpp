// SPDX-License-Identifier: MIT
#include "apps/refdialer/MessageBox.h"
#include "refhost/libcore/Host.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTest>

using refdialer::MessageBox;

class TestMessageBox : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatLooksLikeMarkup();
    void speaksTheLanguageOfTheProgram();
    void endsByEscape();
};

void TestMessageBox::showsWhatLooksLikeMarkup()
{
    const QString text = "The history \"/home/<b>me</b>/connections.db\" is a folder.";
    const MessageBox box(QMessageBox::Warning, "History", text, nullptr);
    const auto *const label = box.findChild<QLabel *>("qt_msgbox_label");
    QCOMPARE(label->text(), text);
    QCOMPARE(label->textFormat(), Qt::PlainText);
}

void TestMessageBox::speaksTheLanguageOfTheProgram()
{
    QVERIFY(refhost::setLanguage("ar"));
    const MessageBox box(QMessageBox::Warning, "a", "b", nullptr);
    QCOMPARE(box.buttons().size(), 1);
    QCOMPARE(box.buttons().constFirst()->text(), QStringLiteral("موافق"));
    QVERIFY(refhost::setLanguage("en"));
}

void TestMessageBox::endsByEscape()
{
    MessageBox box(QMessageBox::Warning, "a", "b", nullptr);
    box.open();
    QTest::keyClick(&box, Qt::Key_Escape);
    QVERIFY(!box.isVisible());
}

QTEST_MAIN(TestMessageBox)
#include "tst_messagebox.moc"
