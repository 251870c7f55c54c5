// SPDX-License-Identifier: MIT
#include "SizeText.h"

#include "PaddedNumber.h"
#include "SaturatingMath.h"

#include <array>
#include <cctype>
#include <cmath>
#include <string>

namespace usage
{

namespace
{

struct Unit {
    std::string_view name;
    std::int64_t bytes;
};

constexpr std::array<Unit, 6> units = {{
    {"", 1},
    {"B", 1},
    {"KB", kilobyte},
    {"MB", kilobyte *kilobyte},
    {"GB", kilobyte *kilobyte *kilobyte},
    {"TB", kilobyte *kilobyte *kilobyte *kilobyte},
}};

std::optional<std::int64_t> unitNamed(std::string_view name)
{
    std::string capitals(name);
    for (char &each : capitals)
        each = static_cast<char>(std::toupper(static_cast<unsigned char>(each)));
    for (const Unit &unit : units) {
        if (unit.name == capitals)
            return unit.bytes;
    }
    return std::nullopt;
}

/// Those digits behind the full stop that can make a byte of the largest unit.
std::string_view takeFraction(TextScanner &scanner)
{
    constexpr std::size_t mostThatCount = 15;
    return scanner.take('.') ? scanner.takeDigits().substr(0, mostThatCount) : "0";
}

Wide numberOf(std::string_view digits)
{
    Wide number = 0;
    for (const char digit : digits)
        number = number * 10 + (digit - '0');
    return number;
}

QString nameOf(const Unit &unit)
{
    return QString::fromLatin1(unit.name.data(), static_cast<int>(unit.name.size()));
}

constexpr std::array<Unit, 3> shownUnits = {{units[2], units[3], units[4]}};

double inUnit(std::int64_t bytes, const Unit &unit)
{
    return static_cast<double>(bytes) / static_cast<double>(unit.bytes);
}

/// The unit is chosen before rounding, as in the history.
const Unit &shownUnit(std::int64_t bytes)
{
    const auto *unit = shownUnits.begin();
    while (std::abs(inUnit(bytes, *unit)) >= 1024 && unit + 1 != shownUnits.end())
        ++unit;
    return *unit;
}

QString numberText(std::int64_t bytes, const Unit &unit, int decimals, Rounding rounding)
{
    if (rounding == Rounding::Nearest)
        return QString::number(inUnit(bytes, unit), 'f', decimals);
    std::int64_t scale = 1;
    for (int i = 0; i < decimals; ++i)
        scale *= 10;
    const std::int64_t scaled = scaledDown(bytes, scale, unit.bytes);
    return QString::number(static_cast<double>(scaled) / static_cast<double>(scale), 'f', decimals);
}

QString withUnit(const QString &number, const Unit &unit)
{
    return number + QLatin1Char(' ') + nameOf(unit);
}

/// Of decimals only.
QString withoutTrailingZeros(QString number)
{
    if (!number.contains(QLatin1Char('.')))
        return number;
    while (number.endsWith(QLatin1Char('0')))
        number.chop(1);
    if (number.endsWith(QLatin1Char('.')))
        number.chop(1);
    return number;
}

QString shortText(std::int64_t bytes, Rounding rounding, int moreDecimals)
{
    const Unit &unit = shownUnit(bytes);
    const double value = std::abs(inUnit(bytes, unit));
    const int decimals = (value < 10 ? 2 : value < 100 ? 1 : 0) + moreDecimals;
    return withUnit(withoutTrailingZeros(numberText(bytes, unit, decimals, rounding)), unit);
}

} // namespace

QString sizeText(std::int64_t bytes, Rounding rounding)
{
    const Unit &unit = shownUnit(bytes);
    return withUnit(numberText(bytes, unit, 2, rounding), unit);
}

void appendSize(std::string &text, std::int64_t bytes)
{
    // Their hundredths fit, and a double holds them as they are.
    constexpr std::int64_t mostCounted = std::int64_t(1) << 53U;
    if (bytes < 0 || bytes > mostCounted) {
        text += sizeText(bytes).toStdString();
        return;
    }
    auto unit = shownUnits.begin();
    while (bytes / unit->bytes >= 1024 && unit + 1 != shownUnits.end())
        ++unit;
    const std::int64_t hundredths = (bytes * 100 + unit->bytes / 2) / unit->bytes;
    text += std::to_string(hundredths / 100);
    appendPadded(text += '.', hundredths % 100, 2);
    (text += ' ') += unit->name;
}

QString shortSizeText(std::int64_t bytes, Rounding rounding)
{
    return shortText(bytes, rounding, 0);
}

PartText shortPartText(std::int64_t part, std::int64_t whole)
{
    // They tell the bytes of a gigabyte apart.
    constexpr int mostDecimals = 10;
    const Rounding rounding = part < whole ? Rounding::Down : Rounding::Nearest;
    PartText text;
    for (int more = 0; text.part == text.whole && more <= mostDecimals; ++more) {
        text = {shortText(part, rounding, more), shortText(whole, Rounding::Nearest, more)};
        if (part >= whole)
            break;
    }
    return text;
}

QString rateText(std::int64_t bytesPerSecond)
{
    const QString size =
        bytesPerSecond < 1024
            ? QString::number(static_cast<qlonglong>(bytesPerSecond)) + QLatin1String(" B")
            : sizeText(bytesPerSecond);
    return size + QLatin1String("/s");
}

QStringList writtenUnits()
{
    QStringList names;
    for (const Unit &unit : units) {
        if (!unit.name.empty())
            names.append(nameOf(unit));
    }
    return names;
}

WrittenSize writtenSize(std::int64_t bytes)
{
    for (auto unit = units.rbegin(); unit != units.rend(); ++unit) {
        const double value = inUnit(bytes, *unit);
        const QString number = withoutTrailingZeros(QString::number(value, 'f', 2));
        const auto read = bytesIn((number + nameOf(*unit)).toStdString());
        if (std::abs(value) >= 1 && read->isInRange && read->value == bytes)
            return {number, nameOf(*unit)};
    }
    return {QString::number(static_cast<qlonglong>(bytes)), nameOf(units[1])};
}

std::optional<WholeNumber> bytesIn(std::string_view text)
{
    constexpr std::size_t mostDigits = 19;
    TextScanner scanner(text);
    const bool isNegative = scanner.take('-');
    const std::string_view whole = scanner.takeDigits();
    const std::string_view fraction = takeFraction(scanner);
    scanner.takeSpaces();
    const auto unit = unitNamed(scanner.rest());
    if (whole.empty() || fraction.empty() || !unit)
        return std::nullopt;
    if (whole.size() > mostDigits)
        return WholeNumber();
    Wide scale = 1;
    for (std::size_t i = 0; i < fraction.size(); ++i)
        scale *= 10;
    const Wide bytes = numberOf(whole) * *unit + numberOf(fraction) * *unit / scale;
    const std::int64_t value = saturated(isNegative ? -bytes : bytes);
    return value == (isNegative ? -bytes : bytes) ? WholeNumber{value, true} : WholeNumber();
}

} // namespace usage
