// SPDX-License-Identifier: MIT
#include "ArgumentList.h"

#include "usage/TextScanner.h"

#include <algorithm>

namespace connrecord
{

namespace
{

bool takesValue(const CLI::App &command, const std::string &option)
{
    const CLI::Option *const found = command.get_option_no_throw(option);
    return found && found->get_items_expected_max() > 0;
}

/// Whether the program, one of its commands or one of theirs has such an option.
bool isOptionWithValue(const CLI::App &parser, const std::string &argument)
{
    const std::vector<const CLI::App *> commands = parser.get_subcommands(nullptr);
    return takesValue(parser, argument) ||
           std::any_of(commands.begin(), commands.end(), [&argument](const CLI::App *command) {
               return isOptionWithValue(*command, argument);
           });
}

} // namespace

std::vector<std::string> argumentsFor(const CLI::App &parser, int argc, char **argv)
{
    std::vector<std::string> arguments;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--") {
            arguments.insert(arguments.end(), argv + i, argv + argc);
            break;
        }
        const std::size_t equals = argument.find('=');
        const std::string name = argument.substr(0, equals);
        if (!usage::startsWith(name, "--") || !isOptionWithValue(parser, name)) {
            arguments.push_back(argument);
            continue;
        }
        arguments.push_back(name);
        if (equals != std::string::npos)
            arguments.push_back(argument.substr(equals + 1));
        else if (i + 1 < argc)
            arguments.emplace_back(argv[++i]);
    }
    std::reverse(arguments.begin(), arguments.end());
    return arguments;
}

} // namespace connrecord
