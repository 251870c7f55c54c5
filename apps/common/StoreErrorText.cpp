// SPDX-License-Identifier: MIT
#include "StoreErrorText.h"

#include "SentenceText.h"
#include "history/Result.h"

namespace common
{

QString storeErrorText(const history::StoreError &error)
{
    return storeErrorText(error.sentence, QString::fromStdString(error.message));
}

QString storeErrorText(const history::Sentence &sentence, const QString &english)
{
    return sentence.text.text ? sentenceText(sentence) : english;
}

} // namespace common
