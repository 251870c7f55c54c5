// SPDX-License-Identifier: MIT
#include "StoreErrorText.h"

#include "history/Result.h"

#include <QCoreApplication>

namespace common
{

QString storeErrorText(const history::StoreError &error)
{
    return storeErrorText(error.sentence, QString::fromStdString(error.message));
}

QString storeErrorText(const history::Sentence &sentence, const QString &english)
{
    if (!sentence.text)
        return english;
    const QString text = QCoreApplication::translate("history", sentence.text);
    return QString::fromStdString(history::filled(text.toStdString(), sentence.arguments));
}

} // namespace common
