// SPDX-License-Identifier: MIT
#include "apps/refdialer/Failure.h"
#include "apps/refdialer/FailureReport.h"
#include "refhost/libcore/Host.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

class TestFailureReport : public QObject
{
    Q_OBJECT

private slots:
    void showsTheReasonUntilTheUserHasReadIt();
};

void TestFailureReport::showsTheReasonUntilTheUserHasReadIt()
{
    QVERIFY(refhost::setLanguage("en"));
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QTimer::singleShot(0, this, [&] {
        auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        text = box->text();
        icon = box->icon();
        QCOMPARE(box->buttons().size(), 1);
        QTest::mouseClick(box->buttons().first(), Qt::LeftButton);
    });
    refdialer::reportInWindow(
        {refdialer::ExitCode::PluginNotLoaded, "The plug-in a<b>.so is not there."});
    QCOMPARE(text, QString("The plug-in a<b>.so is not there."));
    QCOMPARE(icon, QMessageBox::Critical);
}

QTEST_MAIN(TestFailureReport)
#include "tst_failurereport.moc"
