// SPDX-License-Identifier: MIT
#include "SentenceText.h"

#include "history/Sentence.h"

#include <QCoreApplication>

namespace common
{

QString sentenceText(const history::Sentence &sentence)
{
    const auto translation = [](const history::Translatable &text) {
        return QCoreApplication::translate(text.context, text.text).toStdString();
    };
    return QString::fromStdString(said(sentence, translation));
}

} // namespace common
