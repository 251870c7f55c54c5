// SPDX-License-Identifier: MIT
#include "formats/Formats.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace formats;

class FormatsTest : public QObject
{
    Q_OBJECT

private slots:
    void knowsAFileByItsBeginning_data();
    void knowsAFileByItsBeginning();
};

void FormatsTest::knowsAFileByItsBeginning_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("format");

    const QByteArray mark = "\xEF\xBB\xBF";
    QTest::newRow("a header") << QByteArray("profile,start,end\n") << "csv";
    QTest::newRow("a header in quotes, behind a mark") << mark + "\"profile\",start\n"
                                                       << "csv";
    QTest::newRow("an array") << QByteArray("[{\"key\": 1}]") << "json";
    QTest::newRow("an array behind a mark and blanks") << mark + " \t\r\n[]"
                                                       << "json";
    QTest::newRow("a connection a line") << QByteArray("{\"connected_seconds\":1}\n") << "jsonl";
    QTest::newRow("the line on a delivery") << QByteArray("{\"last_key\":3}\n") << "jsonl";
    QTest::newRow("a log of JSON") << QByteArray("{\"MESSAGE\":\"Exit.\"}\n") << "pppd";
    QTest::newRow("a log") << QByteArray("Nov 10 17:02:09 gw pppd[485]: Exit.\n") << "pppd";
    QTest::newRow("a word") << QByteArray("words") << "pppd";
    QTest::newRow("blanks alone") << QByteArray(" \n") << "pppd";
    QTest::newRow("nothing") << QByteArray() << "pppd";
}

void FormatsTest::knowsAFileByItsBeginning()
{
    QFETCH(QByteArray, contents);
    const QTemporaryDir folder;
    QFile file(folder.filePath("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(contents);
    file.close();
    QTEST(QString(recognisedFormat(file.fileName().toStdString()).name), "format");
}

QTEST_GUILESS_MAIN(FormatsTest)

#include "tst_formats.moc"
