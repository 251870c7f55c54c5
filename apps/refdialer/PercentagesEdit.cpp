// SPDX-License-Identifier: MIT
#include "PercentagesEdit.h"

#include "LocalNumber.h"
#include "history/DataPlan.h"

#include <QLocale>
#include <QStringList>

namespace refdialer
{

namespace
{

constexpr char16_t arabicComma = u'\u060c';
constexpr char16_t fullWidthComma = u'\uff0c';
constexpr char16_t enumerationComma = u'\u3001';

QStringList partsOf(QString text)
{
    for (const char16_t comma : {u',', arabicComma, fullWidthComma, enumerationComma})
        text.replace(QChar(comma), QLatin1Char(' '));
    const QString list = withPlainDigits(text).simplified();
    return list.isEmpty() ? QStringList() : list.split(QLatin1Char(' '));
}

} // namespace

void PercentagesEdit::setPercentages(const std::vector<int> &percentages)
{
    QStringList texts;
    for (const int each : percentages)
        texts.append(localNumber(QString::number(each), locale()));
    setText(texts.join(QStringLiteral(", ")));
}

std::optional<std::vector<int>> PercentagesEdit::percentages() const
{
    std::vector<int> percentages;
    for (const QString &each : partsOf(text())) {
        bool isNumber = false;
        const int percent = each.toInt(&isNumber);
        if (!isNumber || percent < 1 || percent > history::highestPercentage)
            return std::nullopt;
        percentages.push_back(percent);
    }
    return percentages;
}

} // namespace refdialer
