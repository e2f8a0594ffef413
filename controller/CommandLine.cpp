#include "ViewController.h"

#include "Logger.h"

#include <Foundation/NSProcessInfo.h>
#include <Foundation/NSString.h>

#include <algorithm>
#include <array>

namespace {

struct Option {
    const char* argument;
    const char* name; // of the mode, in the log
    ViewController::Mode mode;
};

using Mode = ViewController::Mode;
constexpr std::array<Option, 3> options { {
    { "-install", "install", Mode::install },
    { "-install2", "unmount", Mode::unmount },
    { "-uninstall", "uninstall", Mode::uninstall },
} };

// Without the pair of single quotes around it. A quote that carries an accent is no quote.
std::string unquoted(const std::string& argument)
{
    const bool isQuoted = argument.size() >= 2 && NSString::hasPrefix(argument, "'")
        && NSString::hasSuffix(argument, "'");
    return isQuoted ? argument.substr(1, argument.size() - 2) : argument;
}

}

std::optional<ViewController::CommandLineOption> ViewController::parseCommandLine() const
{
    const Option* option = options.end();
    std::optional<std::string> path;
    const auto arguments = NSProcessInfo::processInfo().arguments();
    for (std::size_t i = 0; i < arguments.size() && !path; ++i) {
        const std::string text = unquoted(arguments[i]);
        if (option != options.end())
            path = text;
        else
            option = std::ranges::find(options, text, &Option::argument);
        if (option != options.end() && option->mode == Mode::uninstall) path = "";
    }
    if (m_test) {
        option = std::ranges::find(options, Mode::unmount, &Option::mode);
        path = "/Volumes/quillbarn installer/quillbarn.app";
    }
    if (!path) return std::nullopt;

    sharedLogger().log(option->name + (' ' + *path), Logger::LogLevel::debug);
    return CommandLineOption { option->mode, *path };
}
