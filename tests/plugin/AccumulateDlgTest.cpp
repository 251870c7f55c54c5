// SPDX-License-Identifier: MIT
#include "AccumulateDlgTest.h"

#include "ExtendDialog.h"
#include "ScriptedHost.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

QDate AccumulateDlgTest::today;

void AccumulateDlgTest::init()
{
    scripted::Host::instance().reset();
    today = QDate(2025, 3, 20);
    AccumulateDlg::m_pCurrentDateTime = noonOfToday;
    m_parent = std::make_unique<QWidget>();
    m_parent->resize(800, 600);
    m_parent->show();
}

void AccumulateDlgTest::cleanup()
{
    dlg()->destroy();
    AccumulateDlg::Destroy();
    NetInfoRecordLogic::Destroy();
    m_parent.reset();
}

QDateTime AccumulateDlgTest::noonOfToday()
{
    return QDateTime(today, QTime(12, 0));
}

AccumulateDialogRecord AccumulateDlgTest::row(const QString &name, const QString &stamp, int base)
{
    AccumulateDialogRecord record;
    record.profileName = name;
    record.downloadedThisMonth = QString::number(base + 1);
    record.downloadedLastMonth = QString::number(base + 2);
    record.downloadedMonthBeforeLast = QString::number(base + 3);
    record.uploadedThisMonth = QString::number(base + 4);
    record.uploadedLastMonth = QString::number(base + 5);
    record.uploadedMonthBeforeLast = QString::number(base + 6);
    record.secondsThisMonth = QString::number(base + 7);
    record.secondsLastMonth = QString::number(base + 8);
    record.secondsMonthBeforeLast = QString::number(base + 9);
    record.periodStamp = stamp;
    return record;
}

QStringList AccumulateDlgTest::profiles()
{
    QStringList result;
    for (int i = 0; i < dlg()->m_pProfileSelectionComboBox->count(); ++i)
        result.append(dlg()->m_pProfileSelectionComboBox->itemText(i));
    return result;
}

QStringList AccumulateDlgTest::shown()
{
    return {dlg()->m_pUploadedValue->text(), dlg()->m_pDownloadedValue->text(),
            dlg()->m_pTransferTimeValue->text()};
}

/// As a user: the index changes first, then the choice is announced.
void AccumulateDlgTest::chooseMonth(int index)
{
    dlg()->m_pMonthSelectionComboBox->setCurrentIndex(index);
    dlg()->onSelectComboItemOfTime(index);
}

void AccumulateDlgTest::chooseProfile(int index)
{
    dlg()->m_pProfileSelectionComboBox->setCurrentIndex(index);
    dlg()->onSelectComboItemOfProfile(index);
}
