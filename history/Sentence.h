// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace history
{

/// A sentence for people, in parts, so that a program can say it in another language: it
/// takes the translation of `text` and fills that.
struct Sentence {
    const char *text = nullptr;         ///< English, translatable; null if it has no parts
    std::vector<std::string> arguments; ///< what stands for "%1", "%2" and so on
};

/// Marks a text for Qt's tool, which knows this function by its name.
constexpr const char *translatable(const char * /*context*/, const char *text)
{
    return text;
}

/// The text with each "%1" replaced by the first argument and so on; what stands in an
/// argument is left alone.
std::string filled(const std::string &text, const std::vector<std::string> &arguments);

} // namespace history
