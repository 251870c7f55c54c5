// SPDX-License-Identifier: MIT
#include "ExpectedHistory.h"

#include <algorithm>

void ExpectedHistory::replaceRoot()
{
    m_isSuppressed = false;
    if (m_hasWindow)
        return;
    m_hasWindow = true;
    m_hasTable = true;
    m_headerPrefix = QString();
    ++m_window;
}

void ExpectedHistory::init()
{
    if (!m_hasTable)
        return;
    m_headerPrefix = answers.textPrefix;
    fetch();
}

bool ExpectedHistory::connectionStatus(unsigned int status)
{
    if (!m_hasWindow || !answers.hasDialupService)
        return false;
    m_wasConnected = m_wasConnected || status == 1;
    if (status != 0 || !m_wasConnected || m_isSuppressed)
        return false;
    m_wasConnected = false;
    return true;
}

void ExpectedHistory::endConnection()
{
    if (!m_hasWindow)
        return;
    if (answers.wantsSummary) {
        m_hasSummary = answers.hasLastRecord;
        m_summaries += m_hasSummary ? 1 : 0;
    }
    fetch();
}

void ExpectedHistory::suppressSummaries()
{
    m_isSuppressed = m_isSuppressed || m_hasWindow;
}

void ExpectedHistory::applyTexts()
{
    if (m_hasTable)
        m_headerPrefix = answers.textPrefix;
}

void ExpectedHistory::end()
{
    m_hasWindow = false;
    m_hasTable = false;
    m_hasSummary = false;
    m_hasStatistics = false;
    m_isCounted = false;
    m_keyOfId.clear();
}

void ExpectedHistory::fetch()
{
    m_keyOfId.clear();
    m_fillings += m_hasTable ? 1 : 0;
    m_isCounted = answers.canList;
    if (!answers.canList || !answers.handsOutArray)
        return;
    sdk.handOut();
    for (int id = 0; id < sdk.listed.size(); ++id)
        m_keyOfId.insert(id, sdk.listed[id]);
}

ExpectedHistory::Question ExpectedHistory::ask(const QVector<int> &selectedKeys) const
{
    return {m_window, m_fillings, selectedKeys};
}

void ExpectedHistory::confirmDelete(const Question &question)
{
    const bool isStillSame =
        m_hasTable && question.window == m_window && question.fillings == m_fillings;
    if (!isStillSame)
        return;
    QVector<int> ids;
    for (int key : question.selectedKeys)
        ids.append(m_keyOfId.key(key));
    std::sort(ids.rbegin(), ids.rend());
    for (int id : ids) {
        sdk.remove(id);
        m_keyOfId.remove(id);
    }
    ++m_fillings;
}

void ExpectedHistory::confirmDeleteAll(const Question &question)
{
    if (!m_hasWindow || question.window != m_window)
        return;
    for (auto rest = m_keyOfId.size(); rest > 0; --rest)
        sdk.remove(0);
    m_keyOfId.clear();
    m_isCounted = false;
    m_fillings += m_hasTable ? 1 : 0;
}

QVector<int> ExpectedHistory::rows() const
{
    QVector<int> keys;
    if (m_hasTable)
        keys = m_keyOfId.values().toVector();
    std::sort(keys.begin(), keys.end());
    return keys;
}
