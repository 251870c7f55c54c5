// SPDX-License-Identifier: MIT
// What the user of a hostile host does with the statistics, and what they should show.
#include "HostileHost.h"

#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPluginLoader>
#include <QPushButton>

namespace
{

bool hasStatistics()
{
    static const bool has = QPluginLoader(LoadedPlugin::fileName())
                                .metaData()
                                .value(QLatin1String("MetaData"))
                                .toObject()
                                .value(QLatin1String("Statistics"))
                                .toBool();
    return has;
}

QDate monthAgo(int months)
{
    const QDate today = QDate::currentDate();
    return QDate(today.year(), today.month(), 1).addMonths(-months);
}

QDate monthOf(const _KORA_ST_CONNRECORD &record)
{
    const qint64 start = QByteArray(record.szStartTime).toLongLong();
    const QDate day = QDateTime::fromSecsSinceEpoch(start).date();
    return QDate(day.year(), day.month(), 1);
}

/// What is no whole number of 64 bits counts nothing.
qint64 bytesOf(const char *text)
{
    return QByteArray(text).toLongLong();
}

QString megabytes(qint64 bytes)
{
    return QString::asprintf("%.2f", static_cast<double>(bytes) / 1048576);
}

} // namespace

QWidget *HostileHost::statistics()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (widget->windowTitle().contains(QLatin1String("IDS_TITLE_TOTAL")))
            return widget;
    }
    return nullptr;
}

void HostileHost::clickStatistics()
{
    const QDate month = monthAgo(0);
    const bool isToShow = hasStatistics() && m_expected.hasTable();
    if (isToShow)
        m_expected.showStatistics();
    invokeSlot("OnAccumulateClicked");
    if (!isToShow)
        return;
    ++m_statistics;
    expect("the statistics are shown", statistics() && statistics()->isVisible(), true);
    if (monthAgo(0) == month)
        compareStatistics(0);
}

void HostileHost::chooseInStatistics()
{
    if (!statistics())
        return;
    const bool isMonth = m_random.once(2);
    auto *const combo = statistics()->findChild<QComboBox *>(
        QLatin1String(isMonth ? "m_pMonthSelectionComboBox" : "m_pProfileSelectionComboBox"));
    if (combo->count() == 0)
        return;
    const QDate month = monthAgo(0);
    const int index = m_random.below(combo->count());
    combo->setCurrentIndex(index);
    QMetaObject::invokeMethod(combo, "activated", Q_ARG(int, index));
    if (isMonth && monthAgo(0) == month)
        compareStatistics(index);
}

void HostileHost::clickStatisticsAway()
{
    if (!statistics())
        return;
    statistics()->findChild<QPushButton *>(QStringLiteral("m_pPushButton"))->click();
    // With Qt 6.8 a frame that has lost its window is not seen, but not hidden either.
    expect("the statistics are closed", statistics() && !statistics()->isVisible(), true);
}

/// As the user does with the frame's own button: it is used again.
void HostileHost::closeStatistics()
{
    if (statistics())
        statistics()->close();
}

void HostileHost::destroyStatistics()
{
    QPointer<QWidget> frame = statistics();
    destroy(frame);
}

/// Of all profiles, which is what is listed first.
void HostileHost::compareStatistics(int monthsAgo)
{
    qint64 uploaded = 0;
    qint64 downloaded = 0;
    const QVector<int> keys = m_expected.countedKeys();
    for (int key : keys) {
        const _KORA_ST_CONNRECORD &record = m_everRecorded[key];
        if (monthOf(record) != monthAgo(monthsAgo))
            continue;
        uploaded += bytesOf(record.szUploadBytes);
        downloaded += bytesOf(record.szDownloadBytes);
    }
    m_countedBytes += uploaded > 0 ? 1 : 0;
    const QString nothing = QStringLiteral("0");
    const bool isCounted = m_expected.isCounted();
    expect("bytes sent", statisticsValue("m_pUploadedData"),
           isCounted ? megabytes(uploaded) : nothing);
    expect("bytes received", statisticsValue("m_pDownloadedData"),
           isCounted ? megabytes(downloaded) : nothing);
}

/// The number beside a label, without its unit.
QString HostileHost::statisticsValue(const char *label) const
{
    const auto *const group =
        statistics()->findChild<QGroupBox *>(QStringLiteral("m_pStatisticsGrp"));
    const auto *const form = static_cast<QFormLayout *>(group->layout());
    const QList<QLabel *> labels = group->findChildren<QLabel *>();
    for (QLabel *value : labels) {
        const QWidget *const beside = form->labelForField(value);
        if (beside && beside->objectName() == QLatin1String(label))
            return value->text().section(QLatin1Char(' '), 0, 0);
    }
    return QStringLiteral("nothing");
}
