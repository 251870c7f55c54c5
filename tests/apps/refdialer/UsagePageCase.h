// SPDX-License-Identifier: MIT
#pragma once

#include "StoreTestCase.h"
#include "apps/refdialer/UsageChart.h"
#include "apps/refdialer/UsagePage.h"
#include "history/Store.h"

#include <QPushButton>
#include <QStringList>

#include <memory>
#include <vector>

constexpr std::int64_t megabyte = 1024 * 1024;

/// Tests of the page of usage on a real store. What it shows follows the calendar, so the
/// samples lie in this month and the one before.
class UsagePageCase : public StoreTestCase
{
    Q_OBJECT

protected slots:
    void init();
    void cleanup();

protected:
    static QDate today() { return QDate::currentDate(); }
    static QDate monthBefore();
    static std::int64_t noonOf(const QDate &day);
    /// At noon of that day, in part roaming if it is said so.
    static history::Connection movedOn(const QDate &day, std::int64_t received, std::int64_t sent,
                                       std::int64_t receivedRoaming = 0);
    static QString longText(const QDate &day);
    static QString monthText(const QDate &day);
    /// From 2026-01-01 on, with a megabyte more each day.
    static std::vector<usage::UsageBar> barsOf(int days);

    void open();
    /// The one with this text, without the mark of its key.
    template <typename Widget = QPushButton>
    Widget &named(const QString &text) const
    {
        for (Widget *const each : m_page->findChildren<Widget *>()) {
            if (each->text().remove('&') == text)
                return *each;
        }
        qFatal("There is no \"%s\".", qPrintable(text));
    }
    refdialer::UsageChart &chart() const { return *m_page->findChild<refdialer::UsageChart *>(); }
    QStringList shownTexts() const;
    bool shows(const QString &text) const;
    /// As the window system does: whoever has the focus gets it.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    std::unique_ptr<refdialer::UsagePage> m_page;
};
