// SPDX-License-Identifier: MIT
#include "Utf8Text.h"

#include "usage/TextScanner.h"

#include <QVector>

#include <algorithm>

namespace formats
{

namespace
{

// A character in front keeps the decoder from taking a byte order mark away.
QByteArray guarded(std::string_view text)
{
    QByteArray bytes(".");
    bytes.append(text.data(), static_cast<int>(text.size()));
    return bytes;
}

/// What Unicode does not know yet may be anything.
bool isHarmless(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

QString utf16(uint character)
{
    if (!QChar::requiresSurrogates(character))
        return QChar(static_cast<ushort>(character));
    return QString(QChar(QChar::highSurrogate(character))) + QChar(QChar::lowSurrogate(character));
}

QString escaped(uint character)
{
    if (character == '\n')
        return QStringLiteral("\\n");
    if (character == '\r')
        return QStringLiteral("\\r");
    if (character == '\t')
        return QStringLiteral("\\t");
    QString text;
    for (const QChar unit : utf16(character))
        text += QStringLiteral("\\u%1").arg(unit.unicode(), 4, 16, QLatin1Char('0'));
    return text;
}

} // namespace

bool isPlainAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char each) { return each >= ' ' && each <= '~'; });
}

bool isUtf8(std::string_view text)
{
    return fromUtf8(text).toUtf8() == QByteArray(text.data(), static_cast<int>(text.size()));
}

QString fromUtf8(std::string_view text)
{
    const QByteArray bytes = guarded(text);
    // With its length: a NUL does not end it.
    return QString::fromUtf8(bytes.constData(), bytes.size()).mid(1);
}

std::string cleanedUtf8(std::string_view text)
{
    return fromUtf8(text).replace(QChar(u'\0'), QChar(QChar::ReplacementCharacter)).toStdString();
}

std::string_view withoutByteOrderMark(std::string_view text)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return usage::startsWith(text, mark) ? text.substr(mark.size()) : text;
}

QString printable(const QString &text, int most)
{
    QString line;
    for (const uint character : text.toUcs4()) {
        if (line.size() >= most)
            return line + QStringLiteral("…");
        line += isHarmless(character) ? utf16(character) : escaped(character);
    }
    return line;
}

std::string printable(std::string_view text, int most)
{
    if (isPlainAscii(text) && text.size() <= static_cast<std::size_t>(most))
        return std::string(text);
    return printable(fromUtf8(text), most).toStdString();
}

QByteArray printableLines(std::string_view text)
{
    QByteArray lines;
    for (;;) {
        const std::size_t lineFeed = text.find('\n');
        lines += printable(fromUtf8(text.substr(0, lineFeed)), unlimited).toUtf8();
        if (lineFeed == std::string_view::npos)
            return lines;
        lines += '\n';
        text.remove_prefix(lineFeed + 1);
    }
}

} // namespace formats
