// SPDX-License-Identifier: MIT
#include "formats/Formats.h"

#include <QTest>

/// What can be imported is fuzzed.
class FuzzedFormatsTest : public QObject
{
    Q_OBJECT

private slots:
    void hasAFuzzTargetForEachFormat();
};

void FuzzedFormatsTest::hasAFuzzTargetForEachFormat()
{
    QStringList formats;
    for (const formats::ImportFormat &format : formats::importFormats)
        formats << format.name;
    QCOMPARE(QString(FUZZED_FORMATS).split(' '), formats);
}

QTEST_GUILESS_MAIN(FuzzedFormatsTest)

#include "tst_fuzzedformats.moc"
