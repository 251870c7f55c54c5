// SPDX-License-Identifier: MIT
#include "SizeEdit.h"

#include "LocalNumber.h"
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
    return withPlainDigits(text).replace(QString(locale.decimalPoint()), QStringLiteral("."));
}

/// It may be meant as the decimal point as well.
bool isGrouped(const QString &text, const QLocale &locale)
{
    return text.contains(QString(locale.groupSeparator()));
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
    m_number->setText(localNumber(size.number, locale()));
    m_unit->setCurrentText(size.unit);
}

bool SizeEdit::isEmpty() const
{
    return number().isEmpty();
}

std::optional<std::int64_t> SizeEdit::bytes() const
{
    const auto read = readBytes();
    return read && read->isInRange ? std::optional(read->value) : std::nullopt;
}

QString SizeEdit::problem() const
{
    const auto read = readBytes();
    if (read)
        return read->isInRange ? QString() : tr("That is more than can be counted.");
    const auto example = [this](const char *digits) {
        return localNumber(QLatin1String(digits), locale());
    };
    return isGrouped(number(), locale())
               ? tr("Write the number without separators of thousands, such as %1 or %2.")
                     .arg(example("1500"), example("1.5"))
               : tr("Write a number, such as %1 or %2.").arg(example("10"), example("1.5"));
}

QString SizeEdit::number() const
{
    return m_number->text().trimmed();
}

std::optional<usage::WholeNumber> SizeEdit::readBytes() const
{
    if (isGrouped(number(), locale()))
        return std::nullopt;
    const QString text = plainNumber(number(), locale()) + m_unit->currentText();
    return usage::bytesIn(text.toStdString());
}

void SizeEdit::setNames(const QString &number, const QString &unit)
{
    m_number->setAccessibleName(number);
    m_unit->setAccessibleName(unit);
}

} // namespace refdialer
