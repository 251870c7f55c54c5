// SPDX-License-Identifier: MIT
#pragma once

#include "AccumulateDialogRecord.h"

#include <QDateTime>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVector>

#include <memory>

class ExtendDialog;
class NetInfoRecordLogic;
class QComboBox;
class QFormLayout;
class QGroupBox;
class QLabel;
class QPushButton;
class QVBoxLayout;
class QWidget;

/// The statistics dialog: totals of a profile in this month, the last one or the
/// one before. One instance per process, GUI thread only. Its frame and widgets are in
/// AccumulateDlg.cpp, the months that it counts and lists in AccumulateMonths.cpp, what
/// it shows of a choice in AccumulateFigures.cpp.
class AccumulateDlg : public QObject
{
    Q_OBJECT

public:
    /// The single instance, made on the first call.
    static AccumulateDlg *Instance();
    /// Ends the single instance; its widgets are left to destroy() and the frame.
    static void Destroy();

    /// Shows the totals of this month in a modal dialog over `parent`. The frame
    /// is made once and reused. Each call connects the controls again, so after
    /// n calls a click or choice is handled n times; that is meant.
    void showWindow(QWidget *parent);
    /// Deletes the widgets, but for the frame.
    void destroy();
    /// The host's text for a string identifier.
    QString tr(QString id);

public Q_SLOTS:
    // The order of the slots is contract: hosts may invoke them by index.
    void onOKBtbClicked();
    void onSelectComboItemOfTime(int monthIndex);
    void onSelectComboItemOfProfile(int profileIndex);

private:
    friend class AccumulateDlgTest;
    friend class tst_AccumulateDlg;
    friend class tst_AccumulateMonths;
    friend class tst_AccumulateFigures;

    struct Figures {
        QString uploaded;
        QString downloaded;
        QString seconds;
    };
    struct Period {
        QString year;
        QString month;
    };

    AccumulateDlg();
    ~AccumulateDlg() override;

    void init();
    bool createSelection(std::unique_ptr<QVBoxLayout> &vertical);
    bool createStatistics(QVBoxLayout *vertical);
    bool createButton(QVBoxLayout *vertical);
    bool createValues();

    void uiSetObjectName();
    void uiSetGeometry();
    void uiSetText();
    void addListener();

    QString checkLeapYear(int year);
    void setDateRange(QString year, int month);
    NetInfoRecordLogic *recordLogic() const;
    void fillComboBoxItem();
    void removeTimeComboElements();

    QString dateRange(const QString &year, int month);
    void insertProfile(int position, const QString &text);
    int monthIndex() const;
    static Period periodOf(const QDateTime &time);
    Period filterPeriod(int monthIndex) const;
    void setTitleOfMonth(int monthIndex);
    static Figures figuresOf(const AccumulateDialogRecord &record, int monthIndex);
    bool isAnyLabelMissing(const char *function) const;
    void showFigures(const Figures &figures);

    static AccumulateDlg *m_pAccumulateDlgInst;
    /// The clock that the months are counted from; tests set their own.
    static QDateTime (*m_pCurrentDateTime)();

    // Guarded pointers: the frame goes with the host's parent widget, and every
    // widget that was shown goes with the frame.
    QPointer<ExtendDialog> m_pDialog;
    QPointer<QWidget> m_pMainWidget;
    QPointer<QLabel> m_pSelectProfileLbl;
    QPointer<QLabel> m_pSelectMonthLbl;
    QPointer<QGroupBox> m_pStatisticsGrp;
    QPointer<QLabel> m_pUploadedData;
    QPointer<QLabel> m_pDownloadedData;
    QPointer<QLabel> m_pTransferTime;
    QPointer<QComboBox> m_pProfileSelectionComboBox;
    QPointer<QComboBox> m_pMonthSelectionComboBox;
    QPointer<QPushButton> m_pPushButton;
    QPointer<QFormLayout> m_pFormLayout;
    QPointer<QLabel> m_pDownloadedValue;
    QPointer<QLabel> m_pUploadedValue;
    QPointer<QLabel> m_pTransferTimeValue;
    NetInfoRecordLogic *m_pRecordLogic = nullptr;
    QVector<AccumulateDialogRecord> m_dialogRecords;
    Period m_currentPeriod; // of the last choice: its rows and its title are of one day
};
