// SPDX-License-Identifier: MIT
#include "formats/CompressedInput.h"

#include <QBuffer>
#include <QTest>

/// A compressed file as a device of Qt's. What the formats make of it: tst_connrecordlogfiles.
class CompressedInputTest : public QObject
{
    Q_OBJECT

private slots:
    void givesOnceMoreWhatWasLookedAt();
};

/// A device is taken for one that can go back unless it says that it cannot.
void CompressedInputTest::givesOnceMoreWhatWasLookedAt()
{
    QByteArray compressed =
        QByteArray::fromHex("1f8b08000000000002ff4bcb2c2a2e51c8c9cc4be52a4e4dcecf4b81b0012c5a455d"
                            "17000000");
    QBuffer device(&compressed);
    device.open(QIODevice::ReadOnly);
    const auto contents = formats::decompressed(device);
    QVERIFY(contents);
    QCOMPARE(contents->peek(5), QByteArray("first"));
    QCOMPARE(contents->readAll(), QByteArray("first line\nsecond line\n"));
}

QTEST_GUILESS_MAIN(CompressedInputTest)

#include "tst_compressedinput.moc"
