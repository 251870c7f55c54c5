// SPDX-License-Identifier: MIT
#include "recorder/DeviceType.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using recorder::deviceTypeIn;

class DeviceTypeTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void readsTheTypeOfADevice();
    void knowsNoTypeWhereNoneIsSaid();
    void knowsNothingOfAnotherDeviceOfThatName();
    void knowsNothingOfADeviceThatIsGone();
    void readsTheLoopbackOfThisMachine();

private:
    bool describe(const QByteArray &properties) const;
    std::string typeOf(int index, const char *name) const
    {
        return deviceTypeIn(m_folder->path().toStdString(), index, name);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void DeviceTypeTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

bool DeviceTypeTest::describe(const QByteArray &properties) const
{
    QFile file(m_folder->filePath("enx1/uevent"));
    return QDir(m_folder->path()).mkdir("enx1") && file.open(QIODevice::WriteOnly) &&
           file.write(properties) == properties.size();
}

void DeviceTypeTest::readsTheTypeOfADevice()
{
    QVERIFY(describe("DEVTYPE=wwan\nINTERFACE=enx1\nIFINDEX=12\n"));
    QCOMPARE(typeOf(12, "enx1"), std::string("wwan"));
}

void DeviceTypeTest::knowsNoTypeWhereNoneIsSaid()
{
    QVERIFY(describe("INTERFACE=enx1\nIFINDEX=12\n"));
    QCOMPARE(typeOf(12, "enx1"), std::string());
}

void DeviceTypeTest::knowsNothingOfAnotherDeviceOfThatName()
{
    QVERIFY(describe("DEVTYPE=wwan\nINTERFACE=enx1\nIFINDEX=12\n"));
    QCOMPARE(typeOf(1, "enx1"), std::string());
    QCOMPARE(typeOf(123, "enx1"), std::string());
}

void DeviceTypeTest::knowsNothingOfADeviceThatIsGone()
{
    QCOMPARE(typeOf(12, "enx1"), std::string());
}

/// The system's own folder reads in the same way.
void DeviceTypeTest::readsTheLoopbackOfThisMachine()
{
    QFile file("/sys/class/net/lo/uevent");
    if (!file.open(QIODevice::ReadOnly))
        QSKIP("there is no /sys/class/net/lo", "");
    const QByteArray properties = file.readAll();
    QVERIFY2(properties.contains("IFINDEX=1\n"), properties.constData());
    QCOMPARE(deviceTypeIn("/sys/class/net", 1, "lo"), std::string());
}

QTEST_GUILESS_MAIN(DeviceTypeTest)

#include "tst_devicetype.moc"
