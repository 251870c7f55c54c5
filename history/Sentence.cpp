// SPDX-License-Identifier: MIT
#include "Sentence.h"

namespace history
{

namespace
{

std::string filled(const std::string &text, const std::vector<Part> &arguments,
                   const Translation &translation)
{
    const auto wordsOf = [&translation](const Part &part) {
        const auto *const clause = std::get_if<Sentence>(&part.content);
        return clause ? said(*clause, translation) : std::get<std::string>(part.content);
    };
    std::string result;
    std::size_t copied = 0;
    for (std::size_t at = text.find('%'); at < text.size(); at = text.find('%', at + 1)) {
        const std::size_t number = static_cast<std::size_t>(text[at + 1] - '1');
        if (number >= arguments.size())
            continue;
        result.append(text, copied, at - copied).append(wordsOf(arguments[number]));
        copied = at + 2;
    }
    return result.append(text, copied);
}

} // namespace

Sentence::Sentence() = default;

Sentence::Sentence(Translatable english)
    : text(english)
{
}

Sentence::Sentence(Translatable english, std::vector<Part> parts)
    : text(english)
    , arguments(std::move(parts))
{
}

std::string said(const Sentence &sentence, const Translation &translation)
{
    return filled(translation(sentence.text), sentence.arguments, translation);
}

std::string inEnglish(const Sentence &sentence)
{
    return said(sentence, [](const Translatable &text) { return std::string(text.text); });
}

} // namespace history
