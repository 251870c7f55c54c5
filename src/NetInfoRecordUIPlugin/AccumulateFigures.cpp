// SPDX-License-Identifier: MIT
#include "AccumulateDlg.h"

#include "Log.h"
#include "NetInfoRecordLogic.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QTime>

AccumulateDlg::Figures AccumulateDlg::figuresOf(const AccumulateDialogRecord &record,
                                                int monthIndex)
{
    switch (monthIndex) {
    case 0:
        return {record.uploadedThisMonth, record.downloadedThisMonth, record.secondsThisMonth};
    case 1:
        return {record.uploadedLastMonth, record.downloadedLastMonth, record.secondsLastMonth};
    case 2:
        return {record.uploadedMonthBeforeLast, record.downloadedMonthBeforeLast,
                record.secondsMonthBeforeLast};
    default:
        return {};
    }
}

bool AccumulateDlg::isAnyLabelMissing(const char *function) const
{
    const Log::Place log(Log::accumulateDlg, function);
    return log.isAnyMissing({m_pUploadedData, m_pUploadedValue, m_pDownloadedValue,
                             m_pDownloadedData, m_pTransferTime, m_pTransferTimeValue},
                            __LINE__);
}

void AccumulateDlg::showFigures(const Figures &figures)
{
    // A time of day from midnight: a day or more wraps around; that is meant.
    const QTime time = QTime(0, 0).addSecs(figures.seconds.toInt());
    m_pUploadedValue->setText(figures.uploaded + QLatin1Char(' ') +
                              tr(QLatin1String("IDS_STC_SINGLEPACKET_UNIT")));
    m_pDownloadedValue->setText(figures.downloaded + QLatin1Char(' ') +
                                tr(QLatin1String("IDS_STC_SINGLEPACKET_UNIT")));
    // Of the C locale: some versions of Qt would take the user's digits.
    m_pTransferTimeValue->setText(QLocale::c().toString(time, QLatin1String("hh:mm:ss")));
    m_pFormLayout->setContentsMargins(10, 20, 10, 10);
    m_pFormLayout->setSpacing(10);
    // Added again at every refresh: the layout's row count grows by three.
    m_pFormLayout->addRow(m_pUploadedData, m_pUploadedValue);
    m_pFormLayout->addRow(m_pDownloadedData, m_pDownloadedValue);
    m_pFormLayout->addRow(m_pTransferTime, m_pTransferTimeValue);
}

void AccumulateDlg::onSelectComboItemOfTime(int monthIndex)
{
    const Log::Operation log(Log::entered, Log::accumulateDlg, __func__);
    log.entry(__LINE__);
    if (log.isMissing(recordLogic(), __LINE__))
        return;
    fillComboBoxItem();
    if (log.isAnyMissing({m_pProfileSelectionComboBox, m_pFormLayout, recordLogic()}, __LINE__))
        return;
    const AccumulateDialogRecord record =
        m_dialogRecords.value(m_pProfileSelectionComboBox->currentIndex());
    setTitleOfMonth(monthIndex);
    if (isAnyLabelMissing(__func__))
        return;
    showFigures(figuresOf(record, monthIndex));
    log.exit(__LINE__);
}

void AccumulateDlg::onSelectComboItemOfProfile(int profileIndex)
{
    const Log::Operation log(Log::enter, Log::accumulateDlg, __func__);
    log.entry(__LINE__);
    fillComboBoxItem();
    if (m_pProfileSelectionComboBox)
        m_pProfileSelectionComboBox->setCurrentIndex(profileIndex);
    if (log.isAnyMissing({m_pMonthSelectionComboBox, recordLogic(), m_pFormLayout}, __LINE__))
        return;
    const AccumulateDialogRecord record = m_dialogRecords.value(profileIndex);
    if (isAnyLabelMissing(__func__))
        return;
    showFigures(figuresOf(record, monthIndex()));
    log.exit(__LINE__);
}
