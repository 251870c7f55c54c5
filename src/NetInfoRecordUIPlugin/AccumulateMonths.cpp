// SPDX-License-Identifier: MIT
#include "AccumulateDlg.h"

#include "ExtendDialog.h"
#include "Log.h"
#include "NetInfoRecordLogic.h"

#include <QComboBox>
#include <QIcon>
#include <QLocale>
#include <QVariant>

namespace
{

QString yearOf(const QString &stamp)
{
    return stamp.mid(0, 4);
}

QString monthOf(const QString &stamp)
{
    return stamp.mid(4, 2);
}

QString yearBefore(const QString &year)
{
    return QString::number(year.toInt() - 1);
}

} // namespace

QString AccumulateDlg::checkLeapYear(int year)
{
    const Log::Operation log(Log::enter, Log::accumulateDlg, __func__);
    log.entry(__LINE__);
    const bool isLeapYear = year % 400 == 0 || (year % 4 == 0 && year % 100 != 0);
    log.exit(__LINE__);
    return QLatin1String(isLeapYear ? "29" : "28");
}

void AccumulateDlg::setDateRange(QString year, int month)
{
    const Log::Operation log(Log::enter, Log::accumulateDlg, __func__);
    log.entry(__LINE__);
    const QString range = dateRange(year, month);
    if (log.isMissing(m_pDialog, __LINE__))
        return;
    m_pDialog->setWindowTitle(tr(QLatin1String("IDS_TITLE_TOTAL")) + QLatin1String(" ( ") + range +
                              QLatin1String(" ) "));
    log.exit(__LINE__);
}

/// First and last day of a month; empty for a month that is none.
QString AccumulateDlg::dateRange(const QString &year, int month)
{
    static const char *const lastDays[] = {"31", nullptr, "31", "30", "31", "30",
                                           "31", "31",    "30", "31", "30", "31"};
    if (month < 1 || month > 12)
        return QString();
    const QString lastDay =
        month == 2 ? checkLeapYear(year.toInt()) : QString(QLatin1String(lastDays[month - 1]));
    const QString monthAndYear = QString::asprintf("/%02d/", month) + year;
    // December's two blanks after the dash are meant.
    const QLatin1String joiner(month == 12 ? " -  " : " - ");
    return QLatin1String("01") + monthAndYear + joiner + lastDay + monthAndYear;
}

/// Empties the profile combo box; the name is the one that callers know.
void AccumulateDlg::removeTimeComboElements()
{
    const Log::Operation log(Log::enter, Log::accumulateDlg, __func__);
    log.entry(__LINE__);
    if (log.isMissing(m_pProfileSelectionComboBox, __LINE__))
        return;
    for (int left = m_pProfileSelectionComboBox->count(); left > 0; --left)
        m_pProfileSelectionComboBox->removeItem(0);
    log.exit(__LINE__);
}

/// The store that the dialog was opened with, while it lives.
NetInfoRecordLogic *AccumulateDlg::recordLogic() const
{
    return m_pRecordLogic == NetInfoRecordLogic::current() ? m_pRecordLogic : nullptr;
}

void AccumulateDlg::fillComboBoxItem()
{
    const Log::Operation log(Log::enter, Log::accumulateDlg, __func__);
    log.entry(__LINE__);
    m_dialogRecords = {};
    if (log.isAnyMissing({recordLogic(), m_pProfileSelectionComboBox}, __LINE__))
        return;
    removeTimeComboElements();
    const QDateTime time = m_pCurrentDateTime();
#ifdef NETINFORECORD_WIRE_STATISTICS
    m_pRecordLogic->updateStatistics(time.date());
#endif
    m_currentPeriod = periodOf(time);
    const QVector<AccumulateDialogRecord> &rows = m_pRecordLogic->m_accumulateRecords;
    if (rows.isEmpty())
        insertProfile(0, tr(QLatin1String("IDS_COMBO_ALLAPN")));
    const Period period = filterPeriod(monthIndex());
    for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
        const AccumulateDialogRecord row = rows.at(i);
        // The first row, for all profiles, is listed in every month.
        if (i > 0 &&
            (yearOf(row.periodStamp) != period.year || monthOf(row.periodStamp) != period.month))
            continue;
        insertProfile(i, i == 0 ? tr(row.profileName) : row.profileName);
        m_dialogRecords.append(row);
    }
    log.exit(__LINE__);
}

void AccumulateDlg::insertProfile(int position, const QString &text)
{
    m_pProfileSelectionComboBox->insertItem(position, QIcon(), text, QVariant());
}

/// The chosen month, -1 without a month combo box.
int AccumulateDlg::monthIndex() const
{
    return m_pMonthSelectionComboBox ? m_pMonthSelectionComboBox->currentIndex() : -1;
}

AccumulateDlg::Period AccumulateDlg::periodOf(const QDateTime &time)
{
    const QString stamp = QLocale::c().toString(time, QLatin1String("yyyyMMddhhmmss"));
    return {yearOf(stamp), monthOf(stamp)};
}

/// Year and month as texts that per-profile rows are held against. Across a
/// year's boundary the month becomes a control character behind a zero, which
/// no row matches; that is meant.
AccumulateDlg::Period AccumulateDlg::filterPeriod(int monthIndex) const
{
    Period period = m_currentPeriod;
    if (monthIndex != 1 && monthIndex != 2)
        return period;
    const int month = period.month.toInt();
    if (month > monthIndex) {
        period.month = QString::number(month - monthIndex);
    } else {
        period.year = yearBefore(period.year);
        period.month = QChar(month - monthIndex + 12);
    }
    if (period.month.size() == 1)
        period.month.prepend(QLatin1Char('0'));
    return period;
}

/// The title counts months with integers and is right across a year's boundary.
void AccumulateDlg::setTitleOfMonth(int monthIndex)
{
    if (monthIndex < 0 || monthIndex > 2)
        return;
    const int month = m_currentPeriod.month.toInt() - monthIndex;
    if (month >= 1)
        setDateRange(m_currentPeriod.year, month);
    else
        setDateRange(yearBefore(m_currentPeriod.year), month + 12);
}
