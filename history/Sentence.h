// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace history
{

/// An English text, and the context in which Qt's tool has found it for translators.
struct Translatable {
    const char *context = nullptr;
    const char *text = nullptr;
};

/// Marks a text for that tool, which knows this function by its name.
constexpr Translatable translatable(const char *context, const char *text)
{
    return {context, text};
}

struct Part;

/// A sentence or a clause for people, in parts, so that a program can say it in another
/// language: it fills the translation of `text`.
struct Sentence {
    Sentence();
    Sentence(Translatable english);
    Sentence(Translatable english, std::vector<Part> parts);

    Translatable text;           ///< null if it has no parts
    std::vector<Part> arguments; ///< what stands for "%1", "%2" and so on
};

/// What stands in a sentence: words that are the same in every language, or a clause.
struct Part {
    Part(std::string words)
        : content(std::move(words))
    {
    }
    Part(Sentence clause)
        : content(std::move(clause))
    {
    }

    std::variant<std::string, Sentence> content;
};

using Translation = std::function<std::string(const Translatable &text)>;

/// The sentence with each of its texts as `translation` gives it; what stands in an argument
/// is left alone.
std::string said(const Sentence &sentence, const Translation &translation);
std::string inEnglish(const Sentence &sentence);

} // namespace history
