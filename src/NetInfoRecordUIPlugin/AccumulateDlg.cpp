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
#include <QIcon>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTime>
#include <QVBoxLayout>
#include <QVariant>

#include <memory>
#include <new>

using Log::now;

namespace
{

const char sourcePath[] = "../../src/NetInfoRecordUIPlugin/AccumulateDlg";
const char buildTime[] = __TIME__;

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

AccumulateDlg *AccumulateDlg::m_pAccumulateDlgInst = nullptr;
QDateTime (*AccumulateDlg::m_pCurrentDateTime)() = &QDateTime::currentDateTime;

void AccumulateDlg::uiSetObjectName()
{
    Log::line("Start File: %s %s: %d: %s:", sourcePath, __func__, 70, buildTime);
    setNameIfPresent(m_pSelectProfileLbl, "m_pSelectProfileLbl");
    setNameIfPresent(m_pSelectMonthLbl, "m_pSelectMonthLbl");
    setNameIfPresent(m_pStatisticsGrp, "m_pStatisticsGrp");
    setNameIfPresent(m_pUploadedData, "m_pUploadedData");
    setNameIfPresent(m_pDownloadedData, "m_pDownloadedData");
    setNameIfPresent(m_pTransferTime, "m_pTransferTime");
    setNameIfPresent(m_pProfileSelectionComboBox, "m_pProfileSelectionComboBox");
    setNameIfPresent(m_pMonthSelectionComboBox, "m_pMonthSelectionComboBox");
    setNameIfPresent(m_pPushButton, "m_pPushButton");
    Log::line("End File: %s: %s: %d: %s:", sourcePath, __func__, 109, buildTime);
}

/// The layouts take over once the dialog is shown; the fixed places are set as
/// well, for hosts that read them.
void AccumulateDlg::uiSetGeometry()
{
    Log::line("Start File: %s %s: %d: %s:", sourcePath, __func__, 126, buildTime);
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
    Log::line("End File: %s: %s: %d: %s:", sourcePath, __func__, 174, buildTime);
}

void AccumulateDlg::uiSetText()
{
    Log::line("Start File: %s %s: %d: %s:", sourcePath, __func__, 230, buildTime);
    if (!m_pDialog) {
        Log::line("AccumulateDlg is not yet initialized: %s %s: %d: %s:", sourcePath, __func__, 235,
                  buildTime);
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
    Log::line("End File: %s: %s: %d: %s:", sourcePath, __func__, 284, buildTime);
}

void AccumulateDlg::showWindow(QWidget *parent)
{
    Log::line("Start File: %s %s: %d: %s:", sourcePath, __func__, 301, buildTime);
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
    Log::line("End File: %s: %s: %d: %s:", sourcePath, __func__, 328, buildTime);
}

AccumulateDlg::AccumulateDlg()
{
    Log::line("Start File: %s %s: %d: %s:", sourcePath, __func__, 361, buildTime);
    init();
    Log::line("End File: %s: %s: %d: %s:", sourcePath, __func__, 365, buildTime);
}

AccumulateDlg::~AccumulateDlg() = default;

void AccumulateDlg::init()
{
    Log::line("Start File: %s %s: %d: %s:", sourcePath, __func__, 370, buildTime);
    std::unique_ptr<QVBoxLayout> vertical;
    if (!createSelection(vertical) || !createStatistics(vertical.get()) ||
        !createButton(vertical.get()) || !createValues())
        return;
    m_pMainWidget->setLayout(vertical.release());
    Log::line("End File: %s: %s: %d: %s:", sourcePath, __func__, 445, buildTime);
}

/// Looks for the first missing object; the first one's line is `line`, the
/// others follow line by line.
bool AccumulateDlg::areAllPresent(std::initializer_list<const QObject *> objects, int line)
{
    for (const QObject *object : objects) {
        if (Log::isMissing(object, sourcePath, "init", line++))
            return false;
    }
    return true;
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
    if (!areAllPresent({m_pMainWidget, m_pSelectProfileLbl, m_pSelectMonthLbl,
                        m_pProfileSelectionComboBox, m_pMonthSelectionComboBox, vertical.get(),
                        profileRow.get(), monthRow.get()},
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
    if (!areAllPresent({m_pStatisticsGrp, m_pUploadedData, m_pDownloadedData, m_pTransferTime},
                       413))
        return false;
    m_pStatisticsGrp->setFixedSize(354, 122);
    vertical->addWidget(m_pStatisticsGrp);
    return true;
}

bool AccumulateDlg::createButton(QVBoxLayout *vertical)
{
    m_pPushButton = new (std::nothrow) QPushButton;
    std::unique_ptr<QHBoxLayout> row(new (std::nothrow) QHBoxLayout);
    if (!areAllPresent({m_pPushButton, row.get()}, 426))
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
    return areAllPresent(
        {m_pFormLayout, m_pDownloadedValue, m_pUploadedValue, m_pTransferTimeValue}, 438);
}

AccumulateDlg *AccumulateDlg::Instance()
{
    Log::line("Start: %s: %s: %s %d", now, sourcePath, __func__, 464);
    if (!m_pAccumulateDlgInst)
        m_pAccumulateDlgInst = new AccumulateDlg;
    Log::line("End  : %s: %s: %s %d", now, sourcePath, __func__, 470);
    return m_pAccumulateDlgInst;
}

void AccumulateDlg::Destroy()
{
    Log::line("Start  : %s: %s: %s %d", now, sourcePath, __func__, 490);
    delete m_pAccumulateDlgInst;
    m_pAccumulateDlgInst = nullptr;
    Log::line("End  : %s: %s: %s %d", now, sourcePath, __func__, 492);
}

void AccumulateDlg::addListener()
{
    Log::line("Entered: %s: %s: %d: %s:", sourcePath, __func__, 525, now);
    // The blank is part of the signal's text; the toolkit normalises it.
    connect(m_pMonthSelectionComboBox, "2activated (int)", this,
            SLOT(onSelectComboItemOfTime(int)));
    connect(m_pProfileSelectionComboBox, "2activated (int)", this,
            SLOT(onSelectComboItemOfProfile(int)));
    Log::line("End: %s: %s: %d: %s:", sourcePath, __func__, 532, now);
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

QString AccumulateDlg::checkLeapYear(int year)
{
    Log::line("Enter: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
    const bool isLeapYear = year % 400 == 0 || (year % 4 == 0 && year % 100 != 0);
    Log::line("Exit: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
    return QLatin1String(isLeapYear ? "29" : "28");
}

void AccumulateDlg::setDateRange(QString year, int month)
{
    Log::line("Enter: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
    const QString range = dateRange(year, month);
    if (Log::isMissing(m_pDialog, sourcePath, __func__, __LINE__))
        return;
    m_pDialog->setWindowTitle(tr(QLatin1String("IDS_TITLE_TOTAL")) + QLatin1String(" ( ") + range +
                              QLatin1String(" ) "));
    Log::line("Exit: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
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
    Log::line("Enter: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
    if (Log::isMissing(m_pProfileSelectionComboBox, sourcePath, __func__, __LINE__))
        return;
    for (int left = m_pProfileSelectionComboBox->count(); left > 0; --left)
        m_pProfileSelectionComboBox->removeItem(0);
    Log::line("Exit: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
}

/// The store that the dialog was opened with, while it lives.
NetInfoRecordLogic *AccumulateDlg::recordLogic() const
{
    return m_pRecordLogic == NetInfoRecordLogic::current() ? m_pRecordLogic : nullptr;
}

void AccumulateDlg::fillComboBoxItem()
{
    Log::line("Enter: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
    m_dialogRecords = {};
    if (Log::isMissing(recordLogic(), sourcePath, __func__, __LINE__) ||
        Log::isMissing(m_pProfileSelectionComboBox, sourcePath, __func__, __LINE__))
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
    Log::line("Exit: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
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
    return Log::isMissing(m_pUploadedData, sourcePath, function, __LINE__) ||
           Log::isMissing(m_pUploadedValue, sourcePath, function, __LINE__) ||
           Log::isMissing(m_pDownloadedValue, sourcePath, function, __LINE__) ||
           Log::isMissing(m_pDownloadedData, sourcePath, function, __LINE__) ||
           Log::isMissing(m_pTransferTime, sourcePath, function, __LINE__) ||
           Log::isMissing(m_pTransferTimeValue, sourcePath, function, __LINE__);
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
    Log::line("Entered: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
    if (Log::isMissing(recordLogic(), sourcePath, __func__, __LINE__))
        return;
    fillComboBoxItem();
    if (Log::isMissing(m_pProfileSelectionComboBox, sourcePath, __func__, __LINE__) ||
        Log::isMissing(m_pFormLayout, sourcePath, __func__, __LINE__) ||
        Log::isMissing(recordLogic(), sourcePath, __func__, __LINE__))
        return;
    const AccumulateDialogRecord record =
        m_dialogRecords.value(m_pProfileSelectionComboBox->currentIndex());
    setTitleOfMonth(monthIndex);
    if (isAnyLabelMissing(__func__))
        return;
    showFigures(figuresOf(record, monthIndex));
    Log::line("Exit: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
}

void AccumulateDlg::onSelectComboItemOfProfile(int profileIndex)
{
    Log::line("Enter: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
    fillComboBoxItem();
    if (m_pProfileSelectionComboBox)
        m_pProfileSelectionComboBox->setCurrentIndex(profileIndex);
    if (Log::isMissing(m_pMonthSelectionComboBox, sourcePath, __func__, __LINE__) ||
        Log::isMissing(recordLogic(), sourcePath, __func__, __LINE__) ||
        Log::isMissing(m_pFormLayout, sourcePath, __func__, __LINE__))
        return;
    const AccumulateDialogRecord record = m_dialogRecords.value(profileIndex);
    if (isAnyLabelMissing(__func__))
        return;
    showFigures(figuresOf(record, monthIndex()));
    Log::line("Exit: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
}
