// SPDX-License-Identifier: MIT
// What a hostile host answers, and what happens to its records meanwhile.
#include "HostileHost.h"

#include <QDateTime>
#include <QLoggingCategory>

#include <algorithm>
#include <iterator>

using scripted::Host;

namespace
{

constexpr int mostRecords = 30;

} // namespace

int HostileHost::answer(const scripted::MessageBox &box)
{
    ++m_questions;
    const bool isAboutAll = box.text.endsWith(QLatin1String("IDS_STR_CLEARALL"));
    const ExpectedHistory::Question question = m_expected.ask(selectedKeys());
    runSomeWithin();
    if (m_random.once(4)) {
        const int refusals[] = {0, -1, 1, 0x00400000};
        return m_random.oneOf(refusals);
    }
    if (isAboutAll)
        m_expected.confirmDeleteAll(question);
    else
        m_expected.confirmDelete(question);
    return 1024;
}

void HostileHost::recordConnection()
{
    if (m_sdk.keys.size() >= mostRecords)
        return;
    const int key = ++m_lastKey;
    // Half of them in the months that the statistics show.
    const qint64 seconds =
        m_random.once(2) ? m_random.below(2000000000)
                         : QDateTime::currentSecsSinceEpoch() - m_random.below(100 * 24 * 3600);
    const QByteArray start = QByteArray::number(seconds);
    const QByteArray amounts[] = {"0", "1024", "99999999999", "-1", "no number", "1e300", ""};
    _KORA_ST_CONNRECORD record =
        scripted::record(QString::number(key), start, start, m_random.oneOf(amounts),
                         m_random.oneOf(amounts), m_random.oneOf(amounts));
    if (m_random.once(8)) // an extra text without its terminator
        std::fill(std::begin(record.szExtraText2), std::end(record.szExtraText2), '\xfe');
    m_records.insert(key, record);
    m_everRecorded.insert(key, record);
    m_sdk.keys.append(key);
    if (m_random.once(12))
        m_sdk.stuck.insert(key);
    m_expected.sdk.keys = m_sdk.keys;
    m_expected.sdk.stuck = m_sdk.stuck;
    publishRecords();
}

void HostileHost::removeElsewhere()
{
    if (m_sdk.keys.isEmpty())
        return;
    m_sdk.keys.removeAt(m_random.below(static_cast<int>(m_sdk.keys.size())));
    m_expected.sdk.keys = m_sdk.keys;
    publishRecords();
}

void HostileHost::publishRecords()
{
    QVector<_KORA_ST_CONNRECORD> records;
    QHash<int, _KORA_ST_CONNRECORD> kept;
    for (int key : m_sdk.keys) {
        records.append(m_records.value(key));
        kept.insert(key, records.last());
    }
    m_records = kept;
    Host::instance().records = records;
}

void HostileHost::changeAnswers()
{
    Host &host = Host::instance();
    ExpectedHistory::Answers &answers = m_expected.answers;
    answers.canList = !m_random.once(6);
    host.getAllStatus = answers.canList ? 0 : 5;
    answers.handsOutArray = !m_random.once(6);
    host.handsOutNullArray = !answers.handsOutArray;
    host.nullArrayCount = m_random.between(-2, 3);
    answers.hasLastRecord = !m_random.once(3);
    host.getLastStatus = answers.hasLastRecord ? 0 : 8;
    answers.wantsSummary = !m_random.once(3);
    if (m_random.once(3)) { // what could not be removed now can
        m_sdk.stuck.clear();
        m_expected.sdk.stuck.clear();
    }
    setSetting(answers.wantsSummary ? "TRUE" : "1");
    host.container = m_random.once(12) ? nullptr : &m_container;
    m_container.hasPlugin = !m_random.once(12);
    m_container.service.givesService = !m_random.once(12);
    answers.hasDialupService =
        host.container && m_container.hasPlugin && m_container.service.givesService;
    QLoggingCategory::setFilterRules(m_random.once(8) ? QStringLiteral("default.debug=true")
                                                      : QStringLiteral("default.debug=false"));
}

void HostileHost::changeWindows()
{
    if (!m_area)
        m_area = new QWidget;
    if (!m_mainWindow)
        m_mainWindow = new QWidget;
    m_area->resize(760, 400);
    m_area->setVisible(!m_random.once(4));
    m_mainWindow->setVisible(m_random.once(2));
    Host::instance().mainWindow = m_random.once(4) ? nullptr : m_mainWindow.data();
}

void HostileHost::setSetting(const char *value)
{
    Host::instance().settings.insert(
        {QStringLiteral("NetInfoRecordUIPlugin"), QStringLiteral("WhetherShowNotesbox")},
        QLatin1String(value));
}
