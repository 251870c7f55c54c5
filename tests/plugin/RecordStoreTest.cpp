// SPDX-License-Identifier: MIT
#include "RecordStoreTest.h"

#include "ScriptedHost.h"

#include <QTest>

using scripted::Host;

const QString RecordStoreTest::path =
    QStringLiteral("../../src/NetInfoRecordUIPlugin/NetInfoRecordLogic");

void RecordStoreTest::init()
{
    Host::instance().reset();
    m_logic = NetInfoRecordLogic::Instance();
}

void RecordStoreTest::cleanup()
{
    if (m_logic)
        qDeleteAll(m_logic->m_records);
    NetInfoRecordLogic::Destroy();
    QCOMPARE(Host::instance().openArrays, 0);
}

QString RecordStoreTest::timeFirst(const char *word, const char *function, int line)
{
    return QStringLiteral("%1: <now>: %2: %3 %4").arg(word, path, function).arg(line);
}

_KORA_ST_CONNRECORD RecordStoreTest::plainRecord(const QString &profile)
{
    return scripted::record(profile, "1267795800", "1267799400", "3600", "1536", "1048576",
                            "normal", "ppp0");
}
