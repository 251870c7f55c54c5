// SPDX-License-Identifier: MIT
#include "AccumulateDlg.h"

#include "Change.h"
#include "CommonUtils.h"
#include "ExtendDialog.h"
#include "Log.h"
#include "NetInfoRecordLogic.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <memory>
#include <new>

namespace
{

const char dialogBuildTime[] = __TIME__;
constexpr Log::Place initPlace(Log::accumulateDlg, "init");
constexpr Log::Form listenerForm{
    "Entered: %s: %s: %d: %s:", "End: %s: %s: %d: %s:", Log::Details::PlaceThenTime};

template <typename Widget>
void setGeometryIfPresent(const QPointer<Widget> &widget, int x, int y, int width, int height)
{
    if (widget)
        widget->setGeometry(x, y, width, height);
}

template <typename Widget>
void setNameIfPresent(const QPointer<Widget> &widget, const char *name)
{
    if (widget)
        widget->setObjectName(QLatin1String(name));
}

/// The host is asked for the texts of widgets that are there only.
template <typename Widget>
void setTextIfPresent(AccumulateDlg &dialog, const QPointer<Widget> &widget, const char *id)
{
    if (widget)
        widget->setText(dialog.tr(QLatin1String(id)));
}

} // namespace

AccumulateDlg *AccumulateDlg::m_pAccumulateDlgInst = nullptr;
QDateTime (*AccumulateDlg::m_pCurrentDateTime)() = &QDateTime::currentDateTime;

void AccumulateDlg::uiSetObjectName()
{
    const Log::Operation log(Log::startFile, Log::accumulateDlg, __func__, dialogBuildTime);
    log.entry(70);
    setNameIfPresent(m_pSelectProfileLbl, "m_pSelectProfileLbl");
    setNameIfPresent(m_pSelectMonthLbl, "m_pSelectMonthLbl");
    setNameIfPresent(m_pStatisticsGrp, "m_pStatisticsGrp");
    setNameIfPresent(m_pUploadedData, "m_pUploadedData");
    setNameIfPresent(m_pDownloadedData, "m_pDownloadedData");
    setNameIfPresent(m_pTransferTime, "m_pTransferTime");
    setNameIfPresent(m_pProfileSelectionComboBox, "m_pProfileSelectionComboBox");
    setNameIfPresent(m_pMonthSelectionComboBox, "m_pMonthSelectionComboBox");
    setNameIfPresent(m_pPushButton, "m_pPushButton");
    log.exit(109);
}

/// The layouts take over once the dialog is shown; the fixed places are set as
/// well, for hosts that read them.
void AccumulateDlg::uiSetGeometry()
{
    const Log::Operation log(Log::startFile, Log::accumulateDlg, __func__, dialogBuildTime);
    log.entry(126);
    if (m_pMainWidget) {
        if (m_pDialog) {
            m_pDialog->AddMainWidget(m_pMainWidget);
            m_pDialog->setFixedSize(380, 320);
            m_pDialog->setModal(true);
        }
        setGeometryIfPresent(m_pSelectProfileLbl, 30, 25, 100, 20);
        setGeometryIfPresent(m_pSelectMonthLbl, 30, 50, 100, 20);
        setGeometryIfPresent(m_pUploadedData, 20, 20, 100, 20);
        setGeometryIfPresent(m_pDownloadedData, 20, 50, 100, 20);
        setGeometryIfPresent(m_pTransferTime, 20, 80, 100, 20);
        setGeometryIfPresent(m_pProfileSelectionComboBox, 155, 20, 180, 20);
        setGeometryIfPresent(m_pMonthSelectionComboBox, 155, 50, 180, 20);
        setGeometryIfPresent(m_pStatisticsGrp, 10, 110, 350, 120);
        setGeometryIfPresent(m_pPushButton, 155, 255, 100, 20);
    }
    log.exit(174);
}

void AccumulateDlg::uiSetText()
{
    const Log::Operation log(Log::startFile, Log::accumulateDlg, __func__, dialogBuildTime);
    log.entry(230);
    if (!m_pDialog) {
        log.line("AccumulateDlg is not yet initialized: %s %s: %d: %s:", 235);
        return;
    }
    if (m_pProfileSelectionComboBox)
        m_pProfileSelectionComboBox->clear();
    if (m_pMonthSelectionComboBox)
        m_pMonthSelectionComboBox->clear();
    m_pDialog->setWindowTitle(tr(QLatin1String("IDS_TITLE_TOTAL")));
    setTextIfPresent(*this, m_pSelectProfileLbl, "IDS_STC_APN");
    setTextIfPresent(*this, m_pSelectMonthLbl, "IDS_STC_MONTH");
    setTextIfPresent(*this, m_pUploadedData, "IDS_TREE_UPLOADED_DATA");
    setTextIfPresent(*this, m_pDownloadedData, "IDS_TREE_DOWNLOADED_DATA");
    setTextIfPresent(*this, m_pTransferTime, "IDS_TREE_TIME_TRANSFER");
    if (m_pMonthSelectionComboBox) {
        m_pMonthSelectionComboBox->addItem(tr(QLatin1String("IDS_COMBO_THISMONTH")));
        m_pMonthSelectionComboBox->addItem(tr(QLatin1String("IDS_COMBO_LASTMONTH")));
        m_pMonthSelectionComboBox->addItem(tr(QLatin1String("IDS_COMBO_BEFORELASTMONTH")));
    }
    if (m_pStatisticsGrp)
        m_pStatisticsGrp->setTitle(tr(QLatin1String("IDS_GROUP_STATISTIC")));
    setTextIfPresent(*this, m_pPushButton, "IDS_BTN_OK");
    log.exit(284);
}

void AccumulateDlg::showWindow(QWidget *parent)
{
    const Log::Operation log(Log::startFile, Log::accumulateDlg, __func__, dialogBuildTime);
    log.entry(301);
    m_pRecordLogic = NetInfoRecordLogic::Instance();
    if (!m_pMainWidget) {
        // The host destroyed the earlier frame with all that stood in it.
        destroy();
        init();
    }
    if (!m_pDialog)
        m_pDialog = new (std::nothrow)
            ExtendDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    if (m_pDialog) {
        uiSetObjectName();
        uiSetGeometry();
        uiSetText();
        CommonUtils::MoveCentre(m_pDialog);
        if (m_pPushButton)
            connect(m_pPushButton, SIGNAL(clicked()), this, SLOT(onOKBtbClicked()));
        addListener();
        onSelectComboItemOfTime(0);
        m_pDialog->setVisible(true);
    }
    log.exit(328);
}

AccumulateDlg::AccumulateDlg()
{
    const Log::Operation log(Log::startFile, Log::accumulateDlg, __func__, dialogBuildTime);
    log.entry(361);
    init();
    log.exit(365);
}

AccumulateDlg::~AccumulateDlg() = default;

void AccumulateDlg::init()
{
    const Log::Operation log(Log::startFile, Log::accumulateDlg, __func__, dialogBuildTime);
    log.entry(370);
    std::unique_ptr<QVBoxLayout> vertical;
    if (!createSelection(vertical) || !createStatistics(vertical.get()) ||
        !createButton(vertical.get()) || !createValues())
        return;
    m_pMainWidget->setLayout(vertical.release());
    log.exit(445);
}

bool AccumulateDlg::createSelection(std::unique_ptr<QVBoxLayout> &vertical)
{
    m_pMainWidget = new (std::nothrow) QWidget(m_pDialog);
    m_pSelectProfileLbl = new (std::nothrow) QLabel;
    m_pSelectMonthLbl = new (std::nothrow) QLabel;
    m_pProfileSelectionComboBox = new (std::nothrow) QComboBox(m_pMainWidget);
    m_pMonthSelectionComboBox = new (std::nothrow) QComboBox(m_pMainWidget);
    vertical.reset(new (std::nothrow) QVBoxLayout);
    std::unique_ptr<QHBoxLayout> profileRow(new (std::nothrow) QHBoxLayout);
    std::unique_ptr<QHBoxLayout> monthRow(new (std::nothrow) QHBoxLayout);
    if (initPlace.isAnyMissing({m_pMainWidget, m_pSelectProfileLbl, m_pSelectMonthLbl,
                                m_pProfileSelectionComboBox, m_pMonthSelectionComboBox,
                                vertical.get(), profileRow.get(), monthRow.get()},
                               382))
        return false;
    m_pProfileSelectionComboBox->setFixedWidth(185);
    profileRow->addWidget(m_pSelectProfileLbl);
    profileRow->addWidget(m_pProfileSelectionComboBox);
    monthRow->addWidget(m_pSelectMonthLbl);
    monthRow->addWidget(m_pMonthSelectionComboBox);
    for (QHBoxLayout *row : {profileRow.release(), monthRow.release()}) {
        row->setContentsMargins(25, 0, 25, 0);
        vertical->addLayout(row);
    }
    return true;
}

bool AccumulateDlg::createStatistics(QVBoxLayout *vertical)
{
    m_pStatisticsGrp = new (std::nothrow) QGroupBox;
    m_pUploadedData = new (std::nothrow) QLabel(m_pStatisticsGrp);
    m_pDownloadedData = new (std::nothrow) QLabel;
    m_pTransferTime = new (std::nothrow) QLabel;
    if (initPlace.isAnyMissing(
            {m_pStatisticsGrp, m_pUploadedData, m_pDownloadedData, m_pTransferTime}, 413))
        return false;
    m_pStatisticsGrp->setFixedSize(354, 122);
    vertical->addWidget(m_pStatisticsGrp);
    return true;
}

bool AccumulateDlg::createButton(QVBoxLayout *vertical)
{
    m_pPushButton = new (std::nothrow) QPushButton;
    std::unique_ptr<QHBoxLayout> row(new (std::nothrow) QHBoxLayout);
    if (initPlace.isAnyMissing({m_pPushButton, row.get()}, 426))
        return false;
    // A stretch, not an alignment: it lets the button take the row's width.
    row->addWidget(m_pPushButton, 132);
    vertical->addLayout(row.release());
    return true;
}

bool AccumulateDlg::createValues()
{
    m_pFormLayout = new (std::nothrow) QFormLayout(m_pStatisticsGrp);
    m_pDownloadedValue = new (std::nothrow) QLabel;
    m_pUploadedValue = new (std::nothrow) QLabel;
    m_pTransferTimeValue = new (std::nothrow) QLabel;
    return !initPlace.isAnyMissing(
        {m_pFormLayout, m_pDownloadedValue, m_pUploadedValue, m_pTransferTimeValue}, 438);
}

AccumulateDlg *AccumulateDlg::Instance()
{
    const Log::Operation log(Log::instance, Log::accumulateDlg, __func__);
    log.entry(464);
    if (!m_pAccumulateDlgInst)
        m_pAccumulateDlgInst = new AccumulateDlg;
    log.exit(470);
    return m_pAccumulateDlgInst;
}

void AccumulateDlg::Destroy()
{
    const Log::Operation log(Log::destroy, Log::accumulateDlg, __func__);
    log.entry(490);
    delete m_pAccumulateDlgInst;
    m_pAccumulateDlgInst = nullptr;
    log.exit(492);
}

void AccumulateDlg::addListener()
{
    const Log::Operation log(listenerForm, Log::accumulateDlg, __func__);
    log.entry(525);
    // The blank is part of the signal's text; Qt normalises it.
    connect(m_pMonthSelectionComboBox, "2activated (int)", this,
            SLOT(onSelectComboItemOfTime(int)));
    connect(m_pProfileSelectionComboBox, "2activated (int)", this,
            SLOT(onSelectComboItemOfProfile(int)));
    log.exit(532);
}

void AccumulateDlg::destroy()
{
    // What has been shown is a child of the group box or the main widget by now
    // and goes with it; the guarded pointers tell.
    delete m_pSelectProfileLbl;
    delete m_pSelectMonthLbl;
    delete m_pUploadedData;
    delete m_pDownloadedData;
    delete m_pTransferTime;
    delete m_pStatisticsGrp;
    delete m_pProfileSelectionComboBox;
    delete m_pMonthSelectionComboBox;
    delete m_pPushButton;
    delete m_pDownloadedValue;
    delete m_pUploadedValue;
    delete m_pTransferTimeValue;
    delete m_pMainWidget;
}

QString AccumulateDlg::tr(QString id)
{
    return Change::tr(id, QLatin1String("NetInfoRecordUIPlugin"));
}

void AccumulateDlg::onOKBtbClicked()
{
    if (m_pDialog)
        m_pDialog->close();
}
