// SPDX-License-Identifier: MIT
#include "apps/refdialer/DemoStore.h"
#include "apps/refdialer/Failure.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <memory>

using refdialer::DemoStore;

class TestDemoStore : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void copiesTheSample();
    void goesWithItsFolder();
    void canBeWrittenWhateverTheSamplesMode();
    void saysWhichSampleCannotBeCopied();

private:
    QString sample() const { return m_folder->filePath("sample.db"); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace
{

QByteArray contentOf(const QString &name)
{
    QFile file(name);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void TestDemoStore::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QFile file(sample());
    QVERIFY(file.open(QFile::WriteOnly));
    QCOMPARE(file.write("sample"), qint64(6));
}

void TestDemoStore::copiesTheSample()
{
    const DemoStore store(sample());
    QCOMPARE(contentOf(store.file()), QByteArray("sample"));
    QVERIFY(store.file() != sample());
}

void TestDemoStore::goesWithItsFolder()
{
    QString folder;
    {
        const DemoStore store(sample());
        folder = QFileInfo(store.file()).path();
        QVERIFY(QFile::exists(folder));
    }
    QVERIFY(!QFile::exists(folder));
    QCOMPARE(contentOf(sample()), QByteArray("sample"));
}

void TestDemoStore::canBeWrittenWhateverTheSamplesMode()
{
    QVERIFY(QFile::setPermissions(sample(), QFile::ReadOwner | QFile::ReadOther));
    const DemoStore store(sample());
    QVERIFY(QFile::permissions(store.file()).testFlag(QFile::WriteOwner));
    QVERIFY(!QFile::permissions(store.file()).testFlag(QFile::ReadOther));
}

void TestDemoStore::saysWhichSampleCannotBeCopied()
{
    const QString missing = m_folder->filePath("missing.db");
    try {
        const DemoStore store(missing);
        QFAIL("nothing was copied and nothing was said");
    } catch (const refdialer::Failure &failure) {
        QCOMPARE(int(failure.code), 3);
        QVERIFY2(failure.message.contains(missing), qPrintable(failure.message));
    }
}

QTEST_GUILESS_MAIN(TestDemoStore)
#include "tst_demostore.moc"
