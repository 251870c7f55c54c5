// SPDX-License-Identifier: MIT
#pragma once

#include "SdkText.h"

#include <QLatin1String>
#include <QString>
#include <QStringView>

#include <array>
#include <cstddef>

/// The texts of fields that recur, as the names of profiles do. Those met last are
/// remembered, so that equal ones are mostly in memory once.
class RecurringTexts
{
public:
    template <typename Unit, std::size_t Size>
    QString of(const Unit (&field)[Size])
    {
        const auto units = view(field, SdkText::length(field));
        QString &known = placeOf(units);
        if (!known.isNull() && known == units)
            return known;
        QString text = SdkText::bounded(field);
        // Not so after a byte order mark, which is no part of the text.
        if (text == units)
            known = text;
        return text;
    }

private:
    static QLatin1String view(const char *text, int length) { return QLatin1String(text, length); }
    static QStringView view(const char16_t *text, int length) { return QStringView(text, length); }

    template <typename Text>
    QString &placeOf(const Text &text)
    {
        std::size_t sum = 0;
        for (const auto unit : text)
            sum = sum * 31 + static_cast<std::size_t>(QChar(unit).unicode());
        return m_known[sum % m_known.size()];
    }

    std::array<QString, 64> m_known;
};
