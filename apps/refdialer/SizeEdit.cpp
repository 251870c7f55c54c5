// SPDX-License-Identifier: MIT
#include "SizeEdit.h"

#include "usage/SizeText.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QLocale>

namespace refdialer
{

namespace
{

/// As usage::bytesIn() reads them: other digits than ours are the same numbers.
QString plainNumber(const QString &text, const QLocale &locale)
{
    QString number = text.trimmed();
    number.replace(QString(locale.decimalPoint()), QStringLiteral("."));
    for (QChar &each : number) {
        if (each.digitValue() >= 0)
            each = QLatin1Char(static_cast<char>('0' + each.digitValue()));
    }
    return number;
}

} // namespace

SizeEdit::SizeEdit(const QString &meaningOfNone, QWidget *parent)
    : QWidget(parent)
    , m_number(new QLineEdit)
    , m_unit(new QComboBox)
{
    m_number->setPlaceholderText(meaningOfNone);
    m_unit->addItems(usage::writtenUnits());
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_number, 1);
    layout->addWidget(m_unit);
    setFocusProxy(m_number);
    setBytes(std::nullopt);
}

void SizeEdit::setBytes(std::optional<std::int64_t> bytes)
{
    const usage::WrittenSize size =
        bytes ? usage::writtenSize(*bytes) : usage::WrittenSize{{}, QStringLiteral("GB")};
    m_number->setText(size.number);
    m_unit->setCurrentText(size.unit);
}

bool SizeEdit::isEmpty() const
{
    return m_number->text().trimmed().isEmpty();
}

std::optional<usage::WholeNumber> SizeEdit::bytes() const
{
    const QString text = plainNumber(m_number->text(), locale()) + m_unit->currentText();
    return usage::bytesIn(text.toStdString());
}

void SizeEdit::setNames(const QString &number, const QString &unit)
{
    m_number->setAccessibleName(number);
    m_unit->setAccessibleName(unit);
}

} // namespace refdialer
