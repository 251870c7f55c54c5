// SPDX-License-Identifier: MIT
#include "ConnectionHistoryDlg.h"

#include "ExtendDialog.h"
#include "Log.h"
#include "NetInfoRecordLogic.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <new>

struct ConnectionHistoryDlg::SummaryLayouts {
    QVBoxLayout *vertical;
    QFormLayout *form;
    QHBoxLayout *horizontal;
};

void ConnectionHistoryDlg::ShowDialogOfLastConnectedRecord(QWidget *parent)
{
    const Log::Operation log(Log::enter, Log::connectionHistoryDlg, __func__);
    log.entry(917);
    if (log.isMissing(m_pRecordLogic, 919))
        return;
    deleteSummary();
    if (!m_pRecordLogic->GetLastConnectedRecord())
        return;
    SummaryLayouts layouts;
    if (!createSummary(parent, layouts))
        return;
    fillSummary(layouts);
    m_pLastRecordDlg->setVisible(true);
    connect(m_pLastRecordOkBtn, SIGNAL(clicked()), this, SLOT(onClickOkButton()));
    log.exit(1011);
}

/// Deletes the frame at once, and with it every widget of the summary; their
/// pointers become null by themselves.
void ConnectionHistoryDlg::deleteSummary()
{
    delete m_pLastRecordDlg;
}

/// Creates every object of the summary, then looks for the first missing one.
bool ConnectionHistoryDlg::createSummary(QWidget *parent, SummaryLayouts &layouts)
{
    const Log::Place log(Log::connectionHistoryDlg, "ShowDialogOfLastConnectedRecord");
    m_pLastRecordDlg =
        new (std::nothrow) ExtendDialog(parent, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    if (log.isMissing(m_pLastRecordDlg, 943))
        return false;
    m_pLastRecordWidget = new (std::nothrow) QWidget(m_pLastRecordDlg);
    if (m_pLastRecordWidget)
        m_pLastRecordDlg->AddMainWidget(m_pLastRecordWidget);
    m_pLastRecordDlg->setWindowTitle(tr(QLatin1String("IDS_TITLE_SINGLE")));
    m_pLastRecordDlg->setFixedSize(382, 217);

    layouts.vertical = new (std::nothrow) QVBoxLayout;
    m_pLastRecordGrp = new (std::nothrow) QGroupBox;
    m_pLastRecordOkBtn = new (std::nothrow) QPushButton;
    m_pDownloadedValueLbl = new (std::nothrow) QLabel;
    m_pUploadedValueLbl = new (std::nothrow) QLabel;
    m_pTransferTimeValueLbl = new (std::nothrow) QLabel;
    m_pDownloadedLbl = new (std::nothrow) QLabel;
    m_pUploadedLbl = new (std::nothrow) QLabel;
    m_pTransferTimeLbl = new (std::nothrow) QLabel;
    layouts.form = new (std::nothrow) QFormLayout;
    layouts.horizontal = new (std::nothrow) QHBoxLayout;

    QObject *const created[] = {
        layouts.vertical,        m_pLastRecordGrp,      m_pLastRecordOkBtn,
        m_pLastRecordWidget,     m_pDownloadedValueLbl, m_pUploadedValueLbl,
        m_pTransferTimeValueLbl, m_pDownloadedLbl,      m_pUploadedLbl,
        m_pTransferTimeLbl,      layouts.form,          layouts.horizontal,
    };
    int line = 964; // of the first check; the others follow line by line
    for (const QObject *object : created) {
        if (!log.isMissing(object, line++))
            continue;
        // The frame and its main widget stay; the rest has no place in them yet.
        for (QObject *part : created) {
            if (part != m_pLastRecordWidget)
                delete part;
        }
        return false;
    }
    return true;
}

void ConnectionHistoryDlg::fillSummary(const SummaryLayouts &layouts)
{
    m_pLastRecordDlg->setWindowModality(Qt::WindowModal);
    layouts.form->setContentsMargins(10, 20, 10, 10);
    m_pUploadedLbl->setText(tr(QLatin1String("IDS_TREE_UPLOADED_DATA")));
    m_pDownloadedLbl->setText(tr(QLatin1String("IDS_TREE_DOWNLOADED_DATA")));
    m_pTransferTimeLbl->setText(tr(QLatin1String("IDS_TREE_TIME_TRANSFER")));
    const ConnectionRecord &last = m_pRecordLogic->m_lastRecord;
    m_pUploadedValueLbl->setText(last.m_strUploaded);
    m_pDownloadedValueLbl->setText(last.m_strDownloaded);
    m_pTransferTimeValueLbl->setText(last.m_strConnectedTime);
    layouts.form->addRow(m_pUploadedLbl, m_pUploadedValueLbl);
    layouts.form->addRow(m_pDownloadedLbl, m_pDownloadedValueLbl);
    layouts.form->addRow(m_pTransferTimeLbl, m_pTransferTimeValueLbl);
    m_pLastRecordGrp->setLayout(layouts.form);

    m_pLastRecordOkBtn->setText(tr(QLatin1String("IDS_BTN_OK")));
    // A stretch, not an alignment: it lets the button take the row's width.
    layouts.horizontal->addWidget(m_pLastRecordOkBtn, 132);
    m_pLastRecordGrp->setFixedHeight(106);
    m_pLastRecordGrp->setTitle(tr(QLatin1String("IDS_GROUP_STATISTIC")));
    layouts.vertical->setContentsMargins(14, 11, 15, 15);
    layouts.vertical->addWidget(m_pLastRecordGrp);
    layouts.vertical->addLayout(layouts.horizontal);
    m_pLastRecordWidget->setLayout(layouts.vertical);
}

void ConnectionHistoryDlg::onClickOkButton()
{
    const Log::Operation log(Log::enter, Log::connectionHistoryDlg, __func__);
    log.entry(1029);
    if (m_pLastRecordDlg) {
        m_pLastRecordDlg->close();
        deleteSummary();
    }
    log.exit(1045);
}
