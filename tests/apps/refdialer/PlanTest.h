// SPDX-License-Identifier: MIT
#pragma once

#include "FakeClock.h"
#include "PlanSamples.h"
#include "SamplePlans.h"
#include "StoreSamples.h"
#include "StoreTestCase.h"
#include "apps/refdialer/PlanWatch.h"

#include <QComboBox>
#include <QLabel>

#include <memory>

constexpr std::int64_t megabyte = 1 << 20;
constexpr std::int64_t gigabyte = 1 << 30;

/// Tests of what the window shows of plans, in English, on a store of their own and at noon of
/// the 19th of November 2026.
class PlanTest : public StoreTestCase
{
    Q_OBJECT

protected slots:
    void init();
    void cleanup();

protected:
    /// Returns when the watch knows what the store has now.
    void readPlans();

    std::unique_ptr<history::Store> m_store;
    FakeClock *m_clock = nullptr; ///< the watch's
    std::unique_ptr<refdialer::PlanWatch> m_watch;
};

/// A connection that received so much in the hour that begins then.
history::Connection movedIn(const QString &hour, std::int64_t bytes, bool isRoaming = false);

/// The widget that this text names to those who cannot see it, or that stands beside the
/// label with it.
template <typename Widget>
Widget &named(const QWidget &window, const QString &name)
{
    for (Widget *const each : window.findChildren<Widget *>()) {
        if (each->accessibleName() == name)
            return *each;
    }
    for (const QLabel *const label : window.findChildren<QLabel *>()) {
        auto *const widget = qobject_cast<Widget *>(label->buddy());
        if (widget && label->text().remove('&') == name + ':')
            return *widget;
    }
    qFatal("There is no %s.", qPrintable(name));
}

/// Presses the window's button with this text.
void press(const QWidget &window, const QString &text);
/// Chooses the entry with this text in the box of that name.
void choose(const QWidget &window, const QString &name, const QString &text);
/// Writes into the field of that name, in the place of what is there.
void write(const QWidget &window, const QString &name, const QString &text);
/// The messages that a dialog shows, from top to bottom.
QStringList messagesIn(const QWidget &window);
