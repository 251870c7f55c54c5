// SPDX-License-Identifier: MIT
#pragma once

#include "NumberedSdk.h"

#include <QMap>
#include <QString>
#include <QVector>

/// What should be on screen and in the SDK's store: the plug-in reduced to
/// records that have a key and nothing else. It is told what happens to the real
/// one, in the same order.
class ExpectedHistory
{
public:
    /// How the host and its SDK will answer from now on.
    struct Answers {
        bool canList = true;
        bool handsOutArray = true;
        bool hasLastRecord = true;
        bool hasDialupService = true;
        bool wantsSummary = true;
        QString textPrefix;
    };
    Answers answers;
    NumberedSdk sdk;

    void replaceRoot();
    void init();
    /// Whether the plug-in asks for its setting now; endConnection() is what follows.
    bool connectionStatus(unsigned int status);
    void endConnection();
    void suppressSummaries();
    void applyTexts();
    void destroyTable() { m_hasTable = m_hasStatistics = false; }
    void showStatistics() { m_hasStatistics = true; }
    void destroyStatistics() { m_hasStatistics = false; }
    void closeSummary() { m_hasSummary = false; }
    void end();

    /// What is on screen when a question opens, to be given back with its answer.
    struct Question {
        int window = 0;
        int fillings = 0;
        QVector<int> selectedKeys;
    };
    Question ask(const QVector<int> &selectedKeys) const;
    void confirmDelete(const Question &question);
    void confirmDeleteAll(const Question &question);

    bool hasWindow() const { return m_hasWindow; }
    bool hasTable() const { return m_hasTable; }
    bool hasSummary() const { return m_hasSummary; }
    /// How many summaries there have been.
    int summaries() const { return m_summaries; }
    bool hasStatistics() const { return m_hasStatistics; }
    /// Whether there is anything that the statistics could add up, and of what.
    bool isCounted() const { return m_isCounted; }
    QVector<int> countedKeys() const { return m_keyOfId.values().toVector(); }
    /// The keys on screen, ascending; none without a table.
    QVector<int> rows() const;
    /// What stands before each header text; null before any was set.
    QString headerPrefix() const { return m_headerPrefix; }

private:
    void fetch();

    bool m_hasWindow = false;
    bool m_hasTable = false;
    bool m_hasSummary = false;
    bool m_hasStatistics = false;
    bool m_isCounted = false;
    bool m_isSuppressed = false;
    bool m_wasConnected = false; // as long as the process lives
    QString m_headerPrefix;
    QMap<int, int> m_keyOfId;
    int m_window = 0; // counts the windows that there have been
    int m_summaries = 0;
    int m_fillings = 0; // counts the changes of the table's rows
};
