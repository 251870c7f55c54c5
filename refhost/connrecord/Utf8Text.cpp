// SPDX-License-Identifier: MIT
#include "Utf8Text.h"

namespace refhost
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

bool isHarmless(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

QString escaped(QChar character)
{
    if (character == QLatin1Char('\n'))
        return QStringLiteral("\\n");
    if (character == QLatin1Char('\r'))
        return QStringLiteral("\\r");
    if (character == QLatin1Char('\t'))
        return QStringLiteral("\\t");
    return QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
}

} // namespace

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

QString printable(const QString &text, int most)
{
    QString line;
    for (const QChar character : text) {
        // Between the two halves of a surrogate pair there is no place to cut.
        if (line.size() >= most && !character.isLowSurrogate())
            return line + QStringLiteral("…");
        line += isHarmless(character) ? QString(character) : escaped(character);
    }
    return line;
}

std::string printable(std::string_view text, int most)
{
    return printable(fromUtf8(text), most).toStdString();
}

} // namespace refhost
