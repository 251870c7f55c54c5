// SPDX-License-Identifier: MIT
#pragma once

#include "history/Sentence.h"

#include <stdexcept>
#include <utility>

class QIODevice;

namespace formats
{

/// Why an input file cannot be used: one sentence for people, which what() has in English.
class InputError : public std::runtime_error
{
public:
    explicit InputError(history::Sentence sentence)
        : std::runtime_error(inEnglish(sentence))
        , m_sentence(std::move(sentence))
    {
    }

    const history::Sentence &sentence() const { return m_sentence; }

private:
    history::Sentence m_sentence;
};

/// The error for the source of that name if reading its device has failed.
InputError notReadToTheEnd(const history::Sentence &name, const QIODevice &device);

} // namespace formats
