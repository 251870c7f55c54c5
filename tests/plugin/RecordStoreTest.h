// SPDX-License-Identifier: MIT
#pragma once

#include "KoraStatistics.h"
#include "NetInfoRecordLogic.h"

#include <QObject>
#include <QString>

/// What the tests of the record store share: a fresh store for each test.
class RecordStoreTest : public QObject
{
    Q_OBJECT

protected:
    static QString timeFirst(const char *word, const char *function, int line);
    static _KORA_ST_CONNRECORD
    plainRecord(const QString &profile = QStringLiteral("internet.example"));

    static const QString path;
    NetInfoRecordLogic *m_logic = nullptr;

private Q_SLOTS:
    void init();
    void cleanup();
};
