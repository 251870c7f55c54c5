// SPDX-License-Identifier: MIT
#include "TransferDialog.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTextOption>
#include <QVBoxLayout>

#include <algorithm>

namespace refdialer
{

namespace
{

// Byte counts may be larger than what a bar counts in.
constexpr int barSteps = 1000;
constexpr int charactersInMessage = 60;
constexpr int detailLines = 8;

int stepOf(const TransferState &state)
{
    return static_cast<int>(std::min(1.0, double(state.done) / double(state.total)) * barSteps);
}

} // namespace

TransferDialog::TransferDialog(TransferKind kind, QWidget *parent)
    : QDialog(parent)
    , m_kind(kind)
    , m_text(new QLabel)
    , m_bar(new QProgressBar)
    , m_details(new QPlainTextEdit)
{
    auto *const buttons = new QDialogButtonBox;
    m_button = buttons->addButton(QString(), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &TransferDialog::reject);

    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    // A long path in it must not make the dialog wider.
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    m_bar->setRange(0, 0);
    m_bar->setTextVisible(false);
    m_details->setReadOnly(true);
    m_details->setTabChangesFocus(true);
    m_details->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    const int margins =
        2 * (m_details->frameWidth() + int(m_details->document()->documentMargin()));
    m_details->setMinimumHeight(m_details->fontMetrics().lineSpacing() * detailLines + margins);
    m_details->hide();

    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(m_bar);
    layout->addWidget(m_details, 1);
    layout->addWidget(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * charactersInMessage);
    retranslate();
}

void TransferDialog::showState(const TransferState &state)
{
    if (m_result || !m_button->isEnabled())
        return;
    m_text->setText(state.text);
    m_bar->setRange(0, state.total > 0 ? barSteps : 0);
    if (state.total > 0)
        m_bar->setValue(stepOf(state));
}

void TransferDialog::showResult(const TransferResult &result)
{
    m_result = result;
    m_bar->hide();
    showDetails(result.details);
    m_button->setEnabled(true);
    retranslate();
    resize(sizeHint().width(), minimumSizeHint().height());
    m_button->setAccessibleDescription(m_text->text());
    m_button->setFocus();
    if (result.kind == TransferResult::Kind::Cancelled)
        reject();
}

void TransferDialog::showDetails(const QString &details)
{
    // Of itself it would take the direction of the name or the number that a line begins with.
    QTextOption option = m_details->document()->defaultTextOption();
    option.setTextDirection(layoutDirection());
    m_details->document()->setDefaultTextOption(option);
    m_details->setPlainText(details);
    m_details->setVisible(!details.isEmpty());
}

void TransferDialog::reject()
{
    if (m_result) {
        QDialog::reject();
        return;
    }
    m_button->setEnabled(false);
    m_bar->setRange(0, 0);
    retranslate();
    emit cancelled();
}

void TransferDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

QString TransferDialog::failureText() const
{
    return isImport() ? tr("Nothing was imported.") : tr("Nothing was exported.");
}

void TransferDialog::retranslate()
{
    setWindowTitle(isImport() ? tr("Import") : tr("Export"));
    m_bar->setAccessibleName(tr("Progress"));
    m_details->setAccessibleName(tr("Details"));
    m_button->setText(m_result ? tr("&Close") : tr("&Cancel"));
    if (m_result)
        m_text->setText(m_result->kind == TransferResult::Kind::Done ? m_result->summary
                                                                     : failureText());
    else if (!m_button->isEnabled())
        m_text->setText(tr("Cancelling"));
}

} // namespace refdialer
