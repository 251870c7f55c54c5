// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace history
{
struct Sentence;
struct StoreError;
} // namespace history

namespace common
{

/// What the history says of an error, in the language of the program.
QString storeErrorText(const history::StoreError &error);
/// The same of the parts of such a sentence, or the English one if it has none.
QString storeErrorText(const history::Sentence &sentence, const QString &english);

} // namespace common
