// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace history
{
struct Sentence;
}

namespace common
{

/// The sentence in the language of the program.
QString sentenceText(const history::Sentence &sentence);

} // namespace common
