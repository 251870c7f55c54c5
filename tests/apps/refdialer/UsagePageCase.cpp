// SPDX-License-Identifier: MIT
#include "UsagePageCase.h"

#include "StoreSamples.h"
#include "refhost/libcore/Host.h"

#include <QDateTime>
#include <QLabel>
#include <QTest>
#include <QWindow>

using refdialer::UsagePage;

void UsagePageCase::init()
{
    StoreTestCase::init();
    QVERIFY(refhost::setLanguage("en"));
    storeWith(m_path, {movedOn(today(), 3 * megabyte, megabyte, 2 * megabyte),
                       movedOn(monthBefore(), 7 * megabyte, 5 * megabyte)});
}

void UsagePageCase::cleanup()
{
    m_page.reset();
    StoreTestCase::cleanup();
}

void UsagePageCase::open()
{
    m_page = std::make_unique<UsagePage>(m_path);
    m_page->setLocale(QLocale(QLocale::English));
    m_page->resize(700, 500);
    m_page->show();
    m_page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    QTRY_VERIFY(!chart().bars().empty());
}

QStringList UsagePageCase::shownTexts() const
{
    QStringList texts;
    for (const QLabel *const label : m_page->findChildren<QLabel *>()) {
        if (label->isVisible())
            texts.append(label->text());
    }
    return texts;
}

bool UsagePageCase::shows(const QString &text) const
{
    return shownTexts().contains(text);
}

void UsagePageCase::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(m_page->windowHandle(), key, modifiers);
}

QDate UsagePageCase::monthBefore()
{
    return QDate(today().year(), today().month(), 1).addDays(-1);
}

std::int64_t UsagePageCase::noonOf(const QDate &day)
{
    return QDateTime(day, QTime(12, 0)).toSecsSinceEpoch();
}

history::Connection UsagePageCase::movedOn(const QDate &day, std::int64_t received,
                                           std::int64_t sent, std::int64_t receivedRoaming)
{
    const std::int64_t noon = noonOf(day);
    history::Connection moved = connection("internet", noon, noon + 7200);
    moved.downloadedBytes = received + receivedRoaming;
    moved.uploadedBytes = sent;
    moved.hours = {{noon, false, sent, received}};
    if (receivedRoaming != 0)
        moved.hours.push_back({noon + 3600, true, 0, receivedRoaming});
    return moved;
}

QString UsagePageCase::longText(const QDate &day)
{
    return QLocale(QLocale::English).toString(day, QLocale::LongFormat);
}

QString UsagePageCase::monthText(const QDate &day)
{
    return QLocale(QLocale::English).standaloneMonthName(day.month()) + ' ' +
           QString::number(day.year());
}

std::vector<usage::UsageBar> UsagePageCase::barsOf(int days)
{
    std::vector<usage::UsageBar> bars;
    for (int day = 0; day < days; ++day)
        bars.push_back({QDate(2026, 1, 1).addDays(day), {(day + 1) * megabyte, 0, 0, 0}});
    return bars;
}
