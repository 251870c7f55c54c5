// SPDX-License-Identifier: MIT
#include "UsagePage.h"

#include "PeriodRow.h"
#include "SizeDelegate.h"
#include "UsageChart.h"
#include "UsageModel.h"
#include "UsageReader.h"
#include "UsageText.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

namespace refdialer
{

namespace
{

constexpr std::chrono::seconds refreshInterval(1);

QComboBox *comboBox(QBoxLayout &layout, QLabel *&label)
{
    // A long name must not make the window wide.
    constexpr int leastCharacters = 12;
    auto *const box = new QComboBox;
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(leastCharacters);
    label = new QLabel;
    label->setBuddy(box);
    layout.addWidget(label);
    layout.addWidget(box, 1);
    return box;
}

QLabel *figuresLabel()
{
    auto *const label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    return label;
}

} // namespace

UsagePage::UsagePage(const std::string &storePath, QWidget *parent)
    : QWidget(parent)
    , m_reader(new UsageReader(storePath, this))
    , m_period(new PeriodRow(this))
    , m_views(new QStackedWidget)
    , m_chart(new UsageChart)
    , m_table(new QTableView)
    , m_model(new UsageModel(this))
    , m_sum(figuresLabel())
    , m_details(figuresLabel())
    , m_copyTextButton(new QPushButton)
    , m_copyPictureButton(new QPushButton)
{
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(createChoices());
    layout->addWidget(m_period);
    layout->addWidget(m_sum);
    layout->addWidget(m_views, 1);
    layout->addWidget(m_details);
    layout->addLayout(createLastRow());
    createViews();
    connect(m_period, &PeriodRow::previousWanted, this, [this] { goTo(m_figures.previous); });
    connect(m_period, &PeriodRow::nextWanted, this, [this] { goTo(m_figures.next); });
    connect(m_reader, &UsageReader::figuresRead, this, &UsagePage::showFigures);
    connect(m_reader, &UsageReader::failed, this, &UsagePage::showFailure);
    connect(&m_timer, &QTimer::timeout, m_reader, &UsageReader::look);
    keepRoomForDetails();
    retranslate();
}

void UsagePage::refresh()
{
    if (isVisible())
        m_reader->look();
}

void UsagePage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange)
        retranslate();
    if (event->type() == QEvent::FontChange)
        keepRoomForDetails();
    QWidget::changeEvent(event);
}

void UsagePage::hideEvent(QHideEvent *event)
{
    m_timer.stop();
    QWidget::hideEvent(event);
}

void UsagePage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_reader->look();
    m_timer.start(refreshInterval);
}

QLayout *UsagePage::createChoices()
{
    auto *const row = new QHBoxLayout;
    m_subjectBox = comboBox(*row, m_subjectLabel);
    m_unitBox = comboBox(*row, m_unitLabel);
    m_unitBox->addItems({QString(), QString()});
    connect(m_subjectBox, qOverload<int>(&QComboBox::activated), this, &UsagePage::chooseSubject);
    connect(m_unitBox, qOverload<int>(&QComboBox::activated), this, &UsagePage::chooseUnit);
    return row;
}

QLayout *UsagePage::createLastRow()
{
    auto *const row = new QHBoxLayout;
    m_tableBox = new QCheckBox;
    row->addWidget(m_tableBox);
    row->addStretch(1);
    row->addWidget(m_copyTextButton);
    row->addWidget(m_copyPictureButton);
    connect(m_tableBox, &QCheckBox::toggled, this, &UsagePage::showAsTable);
    connect(m_copyTextButton, &QPushButton::clicked, this, [this] { copy(true, false); });
    connect(m_copyPictureButton, &QPushButton::clicked, this, [this] { copy(false, true); });
    auto *const copyKey = new QShortcut(QKeySequence::Copy, this);
    copyKey->setContext(Qt::WidgetWithChildrenShortcut);
    connect(copyKey, &QShortcut::activated, this, [this] { copy(true, true); });
    return row;
}

void UsagePage::createViews()
{
    m_table->setModel(m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    SizeDelegate::showSizesIn(*m_table, 1, m_model->columnCount());
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->verticalHeader()->hide();
    m_views->addWidget(m_chart);
    m_views->addWidget(m_table);
    connect(m_chart, &UsageChart::currentChanged, this, &UsagePage::showDetails);
    connect(m_chart, &UsageChart::pointedAt, this, [this](int bar) {
        m_pointedAt = bar;
        showDetails();
    });
}

void UsagePage::retranslate()
{
    m_subjectLabel->setText(tr("Sho&w:"));
    m_unitLabel->setText(tr("&Bars:"));
    m_unitBox->setItemText(0, tr("By day"));
    m_unitBox->setItemText(1, tr("By month"));
    m_tableBox->setText(tr("As &table"));
    m_copyTextButton->setText(tr("Copy te&xt"));
    m_copyPictureButton->setText(tr("Copy p&icture"));
    for (QWidget *const view : {static_cast<QWidget *>(m_chart), static_cast<QWidget *>(m_table)})
        view->setAccessibleName(tr("Usage"));
    m_chart->setAccessibleDescription(tr("The arrow keys go from bar to bar."));
    m_model->setLocale(locale());
    showSubjects();
    showTexts();
}

void UsagePage::showFigures(const UsageFigures &figures)
{
    const bool areSubjectsNew =
        !(figures.subjects == m_figures.subjects && figures.subject == m_figures.subject);
    m_figures = figures;
    m_failure.clear();
    if (areSubjectsNew)
        showSubjects();
    m_model->setBars(figures.bars, figures.unit);
    showTexts();
}

/// What was read before stays.
void UsagePage::showFailure(const QString &reason)
{
    m_failure = reason;
    showDetails();
}

void UsagePage::showSubjects()
{
    m_subjectBox->clear();
    for (const UsageSubject &subject : m_figures.subjects)
        m_subjectBox->addItem(UsageText::subjectName(subject));
    const auto &subjects = m_figures.subjects;
    const auto chosen = std::find(subjects.begin(), subjects.end(), m_figures.subject);
    m_subjectBox->setCurrentIndex(int(chosen - subjects.begin()));
}

void UsagePage::showTexts()
{
    const bool isRead = !m_figures.bars.empty();
    m_period->showPeriod(isRead ? UsageText::spanName(m_figures, locale()) : QString(),
                         !m_figures.previous.isNull(), !m_figures.next.isNull());
    m_sum->setText(isRead ? sumText() : QString());
    m_chart->setBars(m_figures.bars, m_figures.unit, emptyNote());
    showDetails();
}

void UsagePage::showDetails()
{
    const int bar = m_pointedAt >= 0 ? m_pointedAt : m_chart->current();
    if (!m_failure.isEmpty())
        m_details->setText(m_failure);
    else
        m_details->setText(bar < 0 || isTable() ? QString() : m_chart->textOf(bar));
}

/// So that the bars do not move while the mouse goes over them.
void UsagePage::keepRoomForDetails()
{
    m_details->setMinimumHeight(2 * m_details->fontMetrics().lineSpacing());
}

bool UsagePage::isTable() const
{
    return m_views->currentWidget() == m_table;
}

QString UsagePage::sumText() const
{
    return UsageText::figuresText(UsageText::subjectName(m_figures.subject),
                                  usage::sumOf(m_figures.bars));
}

QString UsagePage::emptyNote() const
{
    if (m_figures.bars.empty() || usage::sumOf(m_figures.bars).total() > 0)
        return {};
    return m_figures.isHistoryEmpty
               ? tr("Nothing has been recorded yet. What your connections move appears here.")
               : tr("Nothing was sent or received in this time.");
}

void UsagePage::chooseSubject(int index)
{
    m_request.subject = m_figures.subjects[std::size_t(index)];
    m_reader->read(m_request);
}

void UsagePage::chooseUnit(int index)
{
    m_request.unit = index == 0 ? usage::BarUnit::Day : usage::BarUnit::Month;
    m_reader->read(m_request);
}

void UsagePage::showAsTable(bool isWanted)
{
    if (isWanted)
        m_table->setCurrentIndex(m_model->index(m_chart->current(), 0));
    else if (m_table->currentIndex().isValid())
        m_chart->setCurrent(m_table->currentIndex().row());
    m_views->setCurrentIndex(isWanted ? 1 : 0);
    showDetails();
}

void UsagePage::goTo(const QDate &day)
{
    m_request.day = day;
    m_reader->read(m_request);
}

void UsagePage::copy(bool isText, bool isPicture)
{
    auto *const copied = new QMimeData;
    if (isText)
        copied->setText(m_model->text());
    if (isPicture)
        copied->setImageData(
            m_chart->picture(m_period->name() + QLatin1Char('\n') + m_sum->text()).toImage());
    QGuiApplication::clipboard()->setMimeData(copied);
}

} // namespace refdialer
