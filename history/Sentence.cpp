// SPDX-License-Identifier: MIT
#include "Sentence.h"

namespace history
{

std::string filled(const std::string &text, const std::vector<std::string> &arguments)
{
    std::string result;
    std::size_t copied = 0;
    for (std::size_t at = text.find('%'); at < text.size(); at = text.find('%', at + 1)) {
        const std::size_t number = static_cast<std::size_t>(text[at + 1] - '1');
        if (number >= arguments.size())
            continue;
        result.append(text, copied, at - copied).append(arguments[number]);
        copied = at + 2;
    }
    return result.append(text, copied);
}

} // namespace history
