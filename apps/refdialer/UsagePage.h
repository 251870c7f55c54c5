// SPDX-License-Identifier: MIT
#pragma once

#include "UsageFigures.h"

#include <QTimer>
#include <QWidget>

#include <optional>
#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QPushButton;
class QStackedWidget;
class QTableView;

namespace refdialer
{

class PeriodRow;
class UsageChart;
class UsageModel;
class UsageReader;

/// The page of the window that shows what was used by days of a period or by months of a year,
/// as bars or as a table. While it is to be seen it keeps up with the history.
class UsagePage : public QWidget
{
    Q_OBJECT

public:
    explicit UsagePage(const std::string &storePath, QWidget *parent = nullptr);

    /// Shows what the history has at this moment.
    void refresh();

protected:
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void createViews();
    QLayout *createChoices();
    QLayout *createLastRow();
    void retranslate();
    void showFigures(const UsageFigures &figures);
    void showFailure(const QString &reason);
    void showSubjects();
    void showTexts();
    void showDetails();
    void keepRoomForDetails();
    bool isTable() const;
    QString emptyNote() const;
    void chooseSubject(int index);
    void chooseUnit(int index);
    void showAsTable(bool isWanted);
    void goTo(const QDate &day);
    QString sumText() const;
    void copy(bool isText, bool isPicture);

    UsageReader *m_reader;
    QTimer m_timer;
    UsageRequest m_request;
    UsageFigures m_figures;
    QString m_failure; ///< why there are no newer figures; empty if there are
    int m_pointedAt = -1;

    QLabel *m_subjectLabel;
    QComboBox *m_subjectBox;
    QLabel *m_unitLabel;
    QComboBox *m_unitBox;
    QCheckBox *m_tableBox;
    PeriodRow *m_period;
    QStackedWidget *m_views;
    UsageChart *m_chart;
    QTableView *m_table;
    UsageModel *m_model;
    QLabel *m_sum;
    QLabel *m_details;
    QPushButton *m_copyTextButton;
    QPushButton *m_copyPictureButton;
};

} // namespace refdialer
