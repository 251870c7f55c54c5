// SPDX-License-Identifier: MIT
#include "PlanTest.h"

#include "refhost/libcore/Host.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace history;
using refdialer::PlanWatch;

void PlanTest::init()
{
    StoreTestCase::init();
    QVERIFY(refhost::setLanguage("en"));
    m_store = std::make_unique<Store>(storeWith(m_path, {}));
    auto clock = std::make_unique<FakeClock>();
    m_clock = clock.get();
    m_clock->utc = utcOf("2026-11-19T12:00:00Z");
    m_watch = std::make_unique<PlanWatch>(QString::fromStdString(m_path), std::move(clock));
}

void PlanTest::cleanup()
{
    m_watch.reset();
    m_store.reset();
    StoreTestCase::cleanup();
}

void PlanTest::readPlans()
{
    m_watch->finish(); // with an earlier look
    m_watch->look();
    m_watch->finish();
}

Connection movedIn(const QString &hour, std::int64_t bytes, bool isRoaming)
{
    Connection moved = connection("internet", utcOf(hour) + 60, utcOf(hour) + 120);
    moved.downloadedBytes = bytes;
    moved.hours = {{utcOf(hour), isRoaming, 0, bytes}};
    return moved;
}

void press(const QWidget &window, const QString &text)
{
    for (QPushButton *const button : window.findChildren<QPushButton *>()) {
        if (button->text().remove('&') == text && button->window() == &window)
            return button->click();
    }
    qFatal("There is no button %s.", qPrintable(text));
}

void choose(const QWidget &window, const QString &name, const QString &text)
{
    auto &box = named<QComboBox>(window, name);
    box.setCurrentIndex(box.findText(text));
    QCOMPARE(box.currentText(), text);
}

QStringList messagesIn(const QWidget &window)
{
    QStringList texts;
    for (const QLabel *const label : window.findChildren<QLabel *>()) {
        if (label->wordWrap() && label->accessibleName().isEmpty() && !label->isHidden())
            texts.append(label->text());
    }
    return texts;
}

void write(const QWidget &window, const QString &name, const QString &text)
{
    auto &edit = named<QLineEdit>(window, name);
    edit.selectAll();
    if (text.isEmpty())
        QTest::keyClick(&edit, Qt::Key_Delete);
    else
        QTest::keyClicks(&edit, text);
}
