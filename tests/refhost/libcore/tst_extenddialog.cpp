// SPDX-License-Identifier: MIT
#include "ExtendDialog.h"

#include <QLayout>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QWindow>

class TestExtendDialog : public QObject
{
    Q_OBJECT

private slots:
    void takesTheContentOver();
    void surroundsTheContentWithoutMargins();
    void keepsAContentThatIsGivenAgain();
    void toleratesNoContent();
    void setsTheRealTitle();
    void isADialogWhateverTheFlags();
    void keepsAFixedSize_data();
    void keepsAFixedSize();
    void leavesTheKeyboardToAnotherProgram();
    void takesTheKeyboardFromItsOwnProgram();
    void canBeDeletedWhileItsButtonIsClicked();
};

namespace
{

class ShowCounter : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show)
            ++m_count;
        return QObject::eventFilter(watched, event);
    }
    int count() const { return m_count; }

private:
    int m_count = 0;
};

} // namespace

void TestExtendDialog::takesTheContentOver()
{
    QPointer<QWidget> content = new QWidget;
    {
        ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
        dialog.AddMainWidget(content);
        QCOMPARE(content->parentWidget(), &dialog);
    }
    QVERIFY(content.isNull());
}

void TestExtendDialog::surroundsTheContentWithoutMargins()
{
    ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    auto *const content = new QWidget;
    dialog.AddMainWidget(content);
    dialog.resize(400, 300);
    dialog.show();
    QCOMPARE(content->geometry(), dialog.rect());
}

void TestExtendDialog::keepsAContentThatIsGivenAgain()
{
    ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    auto *const content = new QWidget;
    dialog.AddMainWidget(content);
    dialog.AddMainWidget(content);
    QCOMPARE(dialog.layout()->count(), 1);
    QCOMPARE(content->parentWidget(), &dialog);
}

void TestExtendDialog::toleratesNoContent()
{
    ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    dialog.AddMainWidget(nullptr);
    QCOMPARE(dialog.layout()->count(), 0);
}

void TestExtendDialog::setsTheRealTitle()
{
    ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    dialog.setWindowTitle("Last connection");
    QCOMPARE(dialog.windowTitle(), QString("Last connection"));
    dialog.show();
    QCOMPARE(dialog.windowHandle()->title(), QString("Last connection"));
}

void TestExtendDialog::isADialogWhateverTheFlags()
{
    QWidget window;
    const ExtendDialog dialog(&window, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    QVERIFY(dialog.isWindow());
    QCOMPARE(dialog.windowType(), Qt::Dialog);
    QVERIFY(dialog.windowFlags() & Qt::WindowCloseButtonHint);
    QCOMPARE(dialog.parentWidget(), &window);
}

void TestExtendDialog::keepsAFixedSize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("contentSize");
    QTest::newRow("the summary") << QSize(382, 217) << QSize(100, 50);
    QTest::newRow("the statistics") << QSize(380, 320) << QSize(100, 50);
    QTest::newRow("a content that wants more") << QSize(382, 217) << QSize(900, 700);
}

void TestExtendDialog::keepsAFixedSize()
{
    QFETCH(QSize, size);
    QFETCH(QSize, contentSize);
    ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    auto *const content = new QWidget(&dialog);
    content->setMinimumSize(contentSize);
    dialog.AddMainWidget(content);
    dialog.setFixedSize(size);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(dialog.size(), size);
    dialog.resize(1000, 800);
    QCOMPARE(dialog.size(), size);
}

void TestExtendDialog::leavesTheKeyboardToAnotherProgram()
{
    QWidget window;
    window.show();
    QVERIFY(!QApplication::activeWindow());
    ExtendDialog dialog(&window, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setVisible(true);
    QVERIFY(dialog.testAttribute(Qt::WA_ShowWithoutActivating));
    QVERIFY(dialog.isVisible());
    // A modal one would be given the keyboard whatever its attribute says.
    QCOMPARE(dialog.windowHandle()->modality(), Qt::NonModal);
    ShowCounter shown;
    dialog.installEventFilter(&shown);
    // The user comes back.
    window.activateWindow();
    QTRY_COMPARE(dialog.windowHandle()->modality(), Qt::WindowModal);
    // It counts for a window that is shown after that.
    QCOMPARE(shown.count(), 1);
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.windowModality(), Qt::WindowModal);
    QVERIFY(!dialog.testAttribute(Qt::WA_ShowWithoutActivating));
}

void TestExtendDialog::takesTheKeyboardFromItsOwnProgram()
{
    QWidget window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    ExtendDialog dialog(&window, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setVisible(true);
    QVERIFY(!dialog.testAttribute(Qt::WA_ShowWithoutActivating));
    QCOMPARE(dialog.windowHandle()->modality(), Qt::WindowModal);
}

void TestExtendDialog::canBeDeletedWhileItsButtonIsClicked()
{
    QPointer<ExtendDialog> dialog =
        new ExtendDialog(nullptr, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    auto *const button = new QPushButton;
    dialog->AddMainWidget(button);
    connect(button, &QPushButton::clicked, this, [&dialog] {
        dialog->close();
        delete dialog;
    });
    dialog->show();
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(dialog.isNull());
}

QTEST_MAIN(TestExtendDialog)
#include "tst_extenddialog.moc"
