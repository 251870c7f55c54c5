// SPDX-License-Identifier: MIT
#include "apps/common/SentenceText.h"
#include "apps/refdialer/TransferDialog.h"
#include "formats/InputError.h"
#include "formats/InputFile.h"
#include "refhost/libcore/Host.h"

#include <QPlainTextEdit>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

using refdialer::TransferResult;

/// In which direction the window shows what an import says.
class MessageDirectionTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { refhost::setLanguage(QStringLiteral("en")); }

    void runsAsTheWindowDoes_data();
    void runsAsTheWindowDoes();
    void keepsTheOrderOfNamesInTheOtherDirection();
};

namespace
{

/// What is wrong with a file that is not there.
QString complaintOf(const std::string &path)
{
    try {
        const formats::InputFile file(path);
        return {};
    } catch (const formats::InputError &error) {
        return common::sentenceText(error.sentence());
    }
}

/// The line in which the dialog shows a short message then.
QTextLine lineShowing(const QString &message, refdialer::TransferDialog &dialog)
{
    dialog.showResult({TransferResult::Kind::Failed, {}, message});
    const QTextLayout *const layout =
        dialog.findChild<QPlainTextEdit *>()->document()->firstBlock().layout();
    [layout] { QTRY_VERIFY(layout->lineCount() > 0); }();
    return layout->lineAt(0);
}

} // namespace

void MessageDirectionTest::runsAsTheWindowDoes_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("from left to right") << Qt::LeftToRight;
    QTest::newRow("from right to left") << Qt::RightToLeft;
}

/// Whatever a message begins with: here, in Arabic, with a mark before the name of a file.
void MessageDirectionTest::runsAsTheWindowDoes()
{
    QFETCH(Qt::LayoutDirection, direction);
    refdialer::TransferDialog dialog(refdialer::TransferKind::Import);
    dialog.setLayoutDirection(direction);
    dialog.show();
    const QTextLine line = lineShowing(QStringLiteral("«\u200e/a\u200e» تالف"), dialog);
    QCOMPARE(line.cursorToX(0) < line.cursorToX(line.textLength()), direction == Qt::LeftToRight);
}

/// Also of folders in letters that run as the message does.
void MessageDirectionTest::keepsTheOrderOfNamesInTheOtherDirection()
{
    QVERIFY(refhost::setLanguage("ar"));
    const QString message = complaintOf("/ا/x/ب/y");
    refdialer::TransferDialog dialog(refdialer::TransferKind::Import);
    dialog.setLayoutDirection(Qt::RightToLeft);
    dialog.show();
    const QTextLine line = lineShowing(message, dialog);
    QVERIFY(line.cursorToX(message.indexOf('x')) < line.cursorToX(message.indexOf('y')));
}

QTEST_MAIN(MessageDirectionTest)
#include "tst_messagedirection.moc"
