#include "CommandLine.h"

#include "Modes.h"

#include <Foundation/NSString.h>

namespace {

// Removes one pair of single quotes. A quote followed by a combining mark is a different character.
std::string unquoted(const std::string& argument)
{
    const bool isQuoted = argument.size() >= 2 && NSString::hasPrefix(argument, "'")
        && NSString::hasSuffix(argument, "'");
    return isQuoted ? argument.substr(1, argument.size() - 2) : argument;
}

}

std::optional<CommandLineOption> parseCommandLine(const std::vector<std::string>& arguments)
{
    const ModeInfo* option = nullptr;
    for (const std::string& argument : arguments) {
        const std::string text = unquoted(argument);
        if (option) return CommandLineOption { option->mode, text };
        option = modeOfArgument(text);
        if (option && !option->requiresPath) return CommandLineOption { option->mode, "" };
    }
    return std::nullopt;
}
